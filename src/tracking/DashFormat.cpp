#include "tracking/DashFormat.h"

#include "base/Decimals.h"
#include "base/Rounding.h"
#include "base/Words.h"
#include "tracking/Totals.h"

#include <QLocale>

#include <algorithm>

namespace vantle::dashformat {

namespace {

constexpr std::int64_t kMinute = 60;
constexpr std::int64_t kHour = 3600;

QString minuteUnit() { return Words::tr("min"); }
QString hourUnit() { return Words::tr("h"); }

/// Formats with one decimal and no trailing ".0"; without decimals from 99.95 on.
QString decimalHours(double hours) {
    if (hours >= 99.95) return fixedDecimals(hours, 0);
    const bool isWhole = fixedDecimals(hours, 1).endsWith(QLatin1String(".0"));
    return isWhole ? fixedDecimals(hours, 0) : shownDecimals(hours, 1);
}

QString grouped(std::int64_t minutes) { return QLocale::system().toString(qlonglong(minutes)); }

QString hoursAndMinutes(std::int64_t hours, std::int64_t minutes) {
    if (minutes == 0) return Words::tr("%1 h").arg(hours);
    return Words::tr("%1 h %2 min").arg(QString::number(hours), QString::number(minutes));
}

} // namespace

QString clock(std::int64_t seconds) {
    const std::int64_t s = std::max<std::int64_t>(seconds, 0);
    const QLatin1Char zero('0');
    const QString secondsText = QStringLiteral("%1").arg(s % kMinute, 2, 10, zero);
    if (s < kHour) return QStringLiteral("%1:%2").arg(s / kMinute).arg(secondsText);
    return QStringLiteral("%1:%2:%3")
        .arg(s / kHour)
        .arg(s % kHour / kMinute, 2, 10, zero)
        .arg(secondsText);
}

StatValue statValue(double hours, DurationStyle style) {
    const std::int64_t totalMinutes = roundedToInteger(hours * 60.0);
    switch (style) {
    case DurationStyle::Natural:
        if (totalMinutes < 0) return {QStringLiteral("0"), minuteUnit()};
        if (totalMinutes < kMinute) return {QString::number(totalMinutes), minuteUnit()};
        return {decimalHours(hours), hourUnit()};
    case DurationStyle::HoursMinutes: {
        if (totalMinutes < 0) return {QStringLiteral("0"), minuteUnit()};
        if (totalMinutes < kMinute) return {QString::number(totalMinutes), minuteUnit()};
        const std::int64_t h = totalMinutes / 60;
        const std::int64_t m = totalMinutes % 60;
        if (m == 0) return {QString::number(h), hourUnit()};
        return {Words::tr("%1 h %2").arg(QString::number(h), QString::number(m)), minuteUnit()};
    }
    case DurationStyle::Minutes:
        return {grouped(std::max<std::int64_t>(totalMinutes, 0)), minuteUnit()};
    case DurationStyle::Clock:
        return {clock(roundedToInteger(hours * 3600.0)), QString()};
    }
    Q_UNREACHABLE();
}

QString inlineHours(double hours, DurationStyle style) {
    const std::int64_t s = roundedToInteger(hours * 3600.0);
    switch (style) {
    case DurationStyle::Clock:
        return clock(s);
    case DurationStyle::Natural:
        if (s == 0) return Words::tr("0 min");
        if (s < kMinute) return Words::tr("%1 sec").arg(s);
        break;
    case DurationStyle::HoursMinutes:
    case DurationStyle::Minutes:
        if (s >= 1 && roundedToInteger(hours * 60.0) < 1) return Words::tr("<1 min");
        break;
    }
    const StatValue stat = statValue(hours, style);
    return stat.unit.isEmpty() ? stat.value : stat.value + QLatin1Char(' ') + stat.unit;
}

QString sessionDuration(std::int64_t seconds, DurationStyle style) {
    const std::int64_t s = std::max<std::int64_t>(seconds, 0);
    switch (style) {
    case DurationStyle::HoursMinutes:
    case DurationStyle::Minutes:
        return inlineHours(static_cast<double>(s) / 3600.0, style);
    case DurationStyle::Clock:
        return clock(s);
    case DurationStyle::Natural:
        if (s < kMinute) return Words::tr("%1 sec").arg(s);
        if (s < kHour) return Words::tr("%1 min").arg(s / kMinute);
        return hoursAndMinutes(s / kHour, s % kHour / kMinute);
    }
    Q_UNREACHABLE();
}

double nextMilestone(double hours) {
    for (const int rung : totals::milestoneLadder)
        if (rung > hours) return rung;
    return totals::milestoneLadder.back();
}

} // namespace vantle::dashformat
