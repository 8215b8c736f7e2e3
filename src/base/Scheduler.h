// Work that runs later on the main thread. Nothing else in the program makes a timer.
#pragma once

#include "base/Date.h"

#include <functional>
#include <memory>

namespace vantle {

/// A timer that is running. To destroy it is to invalidate it: nothing fires afterwards, also when
/// the destruction happens inside its own callback.
class Timer {
public:
    virtual ~Timer() = default;
};

using TimerHandle = std::unique_ptr<Timer>;

/// Makes timers and runs work later on the main thread. Timers go by a clock that changes of the
/// wall clock do not move. Callbacks must hold their objects weakly, or be owned by them through
/// the returned handle.
class Scheduler {
public:
    virtual ~Scheduler() = default;

    /// Calls `work` every `every` seconds until the handle is destroyed. The platform may shift a
    /// call by up to `tolerance` to save wake-ups. Main thread.
    [[nodiscard]] virtual TimerHandle scheduleRepeatingTimer(Seconds every, Seconds tolerance,
                                                             std::function<void()> work) = 0;

    /// Calls `work` once, `delay` seconds from now, unless the handle is destroyed before. A delay
    /// below zero counts as none; one of weeks may be cut to 24 days. Main thread.
    [[nodiscard]] virtual TimerHandle scheduleOnce(Seconds delay, std::function<void()> work) = 0;

    /// Runs `work` on the main thread after the work that it is doing now. In order of posting.
    /// Any thread.
    virtual void post(std::function<void()> work) = 0;
};

/// The form over Qt's event loop. Make it on the main thread, after the application object.
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
