// The one QML engine of the program's views.
#pragma once

#include <functional>
#include <memory>

class QQmlEngine;

namespace vantle {

/// Made for the first view and gone with the last: at rest the program holds no engine. Whoever
/// shows a view keeps what acquire() gave until the view is destroyed. Main thread.
class SharedEngine {
public:
    /// `prepare` runs at each acquire(), before the view is made: for what views have to know.
    explicit SharedEngine(std::function<void(QQmlEngine&)> prepare = {});

    [[nodiscard]] std::shared_ptr<QQmlEngine> acquire();

    /// Runs `prepare` on the engine that there is, for what has changed under views that stand.
    void refresh();

    /// Whether somebody holds an engine.
    [[nodiscard]] bool isAlive() const { return !m_engine.expired(); }

private:
    std::function<void(QQmlEngine&)> m_prepare;
    std::weak_ptr<QQmlEngine> m_engine;
};

} // namespace vantle
