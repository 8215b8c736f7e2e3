// The source of the current time.
//
// No other class of the program reads the system's clocks.
#pragma once

#include "base/Date.h"

namespace vantle {

/// The wall clock and the uptime. Never fails. Any thread.
class Clock {
public:
    virtual ~Clock() = default;

    /// The wall clock. It can jump in both directions: the user sets it, a time server corrects it,
    /// the machine sleeps.
    [[nodiscard]] virtual Date now() const = 0;

    /// The time since boot, which setting the wall clock does not change.
    struct Uptime {
        Seconds total{}; ///< includes sleep of the machine
        Seconds awake{}; ///< excludes sleep; timers run on it
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
