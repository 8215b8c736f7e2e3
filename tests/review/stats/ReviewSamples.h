// The records and settings of review tests.
#pragma once

#include "review/stats/WrappedStats.h"
#include "tracking/Samples.h"

namespace vantle::samples {

/// Work on "building" that began then, tracked, without a pause. Ids follow each other.
[[nodiscard]] inline Session worked(std::string_view start, std::int64_t minutes,
                                    const QString& skillId = QStringLiteral("building")) {
    static int count = 0;
    const Date begin = at(start);
    return {
        id(++count),  skillId,   begin,      begin + Seconds(60.0 * static_cast<double>(minutes)),
        60 * minutes, QString(), sourceApp()};
}

[[nodiscard]] inline Calendar calendarIn(const QString& zone) {
    return {zone, 2, 4, QStringLiteral("en_US")}; // weeks begin on Mondays
}

[[nodiscard]] inline WrappedSettings settingsAt(std::string_view now,
                                                const QString& zone = QStringLiteral("UTC")) {
    WrappedSettings settings;
    settings.now = at(now);
    settings.calendar = calendarIn(zone);
    settings.skills = seeds();
    return settings;
}

} // namespace vantle::samples
