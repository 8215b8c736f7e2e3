// Timers and delayed work on the main thread.
//
// No other class of the program makes a timer.
#pragma once

#include "base/Date.h"

#include <functional>
#include <memory>

namespace vantle {

/// A running timer. Destroying it stops it, also from inside its own callback.
class Timer {
public:
    virtual ~Timer() = default;
};

using TimerHandle = std::unique_ptr<Timer>;

/// Makes timers and runs work later on the main thread. Timers run on a clock that setting the wall
/// clock does not move. A callback must hold its objects weakly, or its object must own the
/// returned handle.
class Scheduler {
public:
    virtual ~Scheduler() = default;

    /// Calls `work` every `every` until the handle is destroyed. The platform may shift a call by
    /// up to `tolerance` to save wake-ups. Main thread.
    [[nodiscard]] virtual TimerHandle scheduleRepeatingTimer(Seconds every, Seconds tolerance,
                                                             std::function<void()> work) = 0;

    /// Calls `work` once after `delay`, unless the handle is destroyed before. A negative delay
    /// counts as 0; a delay of weeks may be cut to 24 days. Main thread.
    [[nodiscard]] virtual TimerHandle scheduleOnce(Seconds delay, std::function<void()> work) = 0;

    /// Queues `work` on the main thread, in order of posting. Any thread.
    virtual void post(std::function<void()> work) = 0;
};

/// The scheduler on Qt's event loop. Requires the application object; construct on the main thread.
class QtScheduler final : public Scheduler {
public:
    QtScheduler();
    ~QtScheduler() override;

    [[nodiscard]] TimerHandle scheduleRepeatingTimer(Seconds every, Seconds tolerance,
                                                     std::function<void()> work) override;
    [[nodiscard]] TimerHandle scheduleOnce(Seconds delay, std::function<void()> work) override;
    void post(std::function<void()> work) override;

private:
    class Target;
    std::unique_ptr<Target> m_target; ///< lives on the main thread; posted work dies with it
};

} // namespace vantle
