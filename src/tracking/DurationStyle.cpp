#include "tracking/DurationStyle.h"

#include "base/Words.h"
#include "tracking/DashFormat.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Settings.h"

namespace vantle::durationstyle {

QString rawValue(DurationStyle style) {
    switch (style) {
    case DurationStyle::Natural:
        return QStringLiteral("natural");
    case DurationStyle::HoursMinutes:
        return QStringLiteral("hoursMinutes");
    case DurationStyle::Minutes:
        return QStringLiteral("minutes");
    case DurationStyle::Clock:
        return QStringLiteral("clock");
    }
    Q_UNREACHABLE();
}

std::optional<DurationStyle> fromRawValue(const QString& value) {
    for (const DurationStyle style : all)
        if (rawValue(style) == value) return style;
    return std::nullopt;
}

QString label(DurationStyle style) {
    switch (style) {
    case DurationStyle::Natural:
        return Words::tr("Natural");
    case DurationStyle::HoursMinutes:
        return Words::tr("Hours and minutes");
    case DurationStyle::Minutes:
        return Words::tr("Minutes only");
    case DurationStyle::Clock:
        return Words::tr("Clock");
    }
    Q_UNREACHABLE();
}

QString sample(DurationStyle style) {
    constexpr double kSampleHours = 3.5033333333333334; // 3 h 30 min 12 s
    return dashformat::inlineHours(kSampleHours, style);
}

void adopt(DurationStyle style, Preferences& preferences, NotificationCenter& notifications) {
    settings::durationStyle.write(preferences, style);
    Q_EMIT notifications.HFSessionsChanged();
}

} // namespace vantle::durationstyle
