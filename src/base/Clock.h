// The time of day and the time that has passed. Nothing else in the program reads them.
#pragma once

#include "base/Date.h"

namespace vantle {

/// Tells the present moment. Any thread; never fails.
class Clock {
public:
    virtual ~Clock() = default;

    /// The wall clock. It can jump in both directions: the user sets it, a server corrects it, the
    /// machine slept.
    [[nodiscard]] virtual Date now() const = 0;

    /// The time since the machine was started, which no change of the wall clock moves.
    struct Uptime {
        Seconds total{}; ///< sleep of the machine included
        Seconds awake{}; ///< stands still while the machine sleeps; timers go by it
    };
    [[nodiscard]] virtual Uptime uptime() const = 0;
};

/// The system's clocks.
class SystemClock final : public Clock {
public:
    [[nodiscard]] Date now() const override;
    [[nodiscard]] Uptime uptime() const override;
};

} // namespace vantle
