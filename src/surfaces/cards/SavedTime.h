// The time that a change of skill has just put away, as the toast writes it. Pure, any thread.
#pragma once

#include "tracking/DurationStyle.h"

#include <QString>

#include <cstdint>

namespace vantle {

/// "12 min" for 750 seconds; less than a second counts as one.
[[nodiscard]] QString savedTime(std::int64_t seconds, DurationStyle style);

} // namespace vantle
