#include "surfaces/cards/SavedTime.h"

#include "tracking/DashFormat.h"

#include <algorithm>

namespace vantle {

namespace {

constexpr std::int64_t kMinute = 60;
constexpr double kHour = 3600.0;

QString valueAndUnit(std::int64_t seconds, DurationStyle style) {
    if (seconds < kMinute) return QStringLiteral("<1 min");
    const auto stat = dashformat::statValue(static_cast<double>(seconds) / kHour, style);
    return stat.unit.isEmpty() ? stat.value : stat.value + QLatin1Char(' ') + stat.unit;
}

} // namespace

QString savedTime(std::int64_t seconds, DurationStyle style) {
    const std::int64_t saved = std::max<std::int64_t>(seconds, 1);
    switch (style) {
    case DurationStyle::Natural:
    case DurationStyle::Clock:
        return dashformat::sessionDuration(saved, style);
    case DurationStyle::HoursMinutes:
    case DurationStyle::Minutes:
        return valueAndUnit(saved, style);
    }
    Q_UNREACHABLE();
}

} // namespace vantle
