// The shared QML engine of all views.
#pragma once

#include "base/Scheduler.h"

#include <functional>
#include <memory>

class QQmlEngine;

namespace vantle {

/// Created for the first view and destroyed some time after the last, so the idle program has no
/// engine: with its types, their typefaces and its heap it takes about 8 MB. The owner of a view
/// keeps acquire()'s result until the view is destroyed. Main thread.
class SharedEngine {
public:
    /// How long the engine outlives its last view: views that are opened again meanwhile find their
    /// types loaded.
    static constexpr Seconds kept{60.0};

    /// `prepare` runs in each acquire(), before the view is created. `scheduler` must outlive this
    /// object.
    explicit SharedEngine(Scheduler& scheduler, std::function<void(QQmlEngine&)> prepare = {});
    ~SharedEngine();

    [[nodiscard]] std::shared_ptr<QQmlEngine> acquire();

    /// Runs `prepare` on the existing engine, to update open views.
    void refresh();

    /// Whether an engine exists.
    [[nodiscard]] bool isAlive() const { return !m_engine.expired(); }

private:
    /// The engine that no view uses at present.
    struct Rest;

    std::function<void(QQmlEngine&)> m_prepare;
    std::weak_ptr<QQmlEngine> m_engine;
    std::weak_ptr<QQmlEngine> m_inUse; ///< what views hold
    std::shared_ptr<Rest> m_rest;
};

} // namespace vantle
