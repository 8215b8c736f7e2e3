// The shared QML engine of all views.
#pragma once

#include <functional>
#include <memory>

class QQmlEngine;

namespace vantle {

/// Created for the first view and destroyed with the last, so the idle program has no engine. The
/// owner of a view keeps acquire()'s result until the view is destroyed. Main thread.
class SharedEngine {
public:
    /// `prepare` runs in each acquire(), before the view is created.
    explicit SharedEngine(std::function<void(QQmlEngine&)> prepare = {});

    [[nodiscard]] std::shared_ptr<QQmlEngine> acquire();

    /// Runs `prepare` on the existing engine, to update open views.
    void refresh();

    /// Whether an engine exists.
    [[nodiscard]] bool isAlive() const { return !m_engine.expired(); }

private:
    std::function<void(QQmlEngine&)> m_prepare;
    std::weak_ptr<QQmlEngine> m_engine;
};

} // namespace vantle
