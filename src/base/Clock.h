// The time of day. Nothing else in the program reads it.
#pragma once

#include "base/Date.h"

namespace vantle {

/// Tells the present moment. The wall clock can jump in both directions: the person sets it, a
/// server corrects it, the machine slept. Any thread; never fails.
class Clock {
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual Date now() const = 0;
};

/// The system's wall clock.
class SystemClock final : public Clock {
public:
    [[nodiscard]] Date now() const override;
};

} // namespace vantle
