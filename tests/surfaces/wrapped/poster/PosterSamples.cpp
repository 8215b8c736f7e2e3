#include "surfaces/wrapped/poster/PosterSamples.h"

#include "tracking/Samples.h"

#include <algorithm>
#include <array>

namespace vantle::samples {

namespace {

constexpr double kDay = 86400;

struct Figures {
    double hours;
    int sessions;
    std::array<double, 3> skillHours; ///< of Build, Design, Marketing
};

Figures figures(WrappedPeriod period) {
    switch (period) {
    case WrappedPeriod::Today:
        return {3.4, 3, {1.9, 1.1, 0.4}};
    case WrappedPeriod::Month:
        return {41.2, 37, {19.6, 9.1, 5.8}};
    case WrappedPeriod::AllTime:
        return {428, 391, {197, 92.4, 61.8}};
    case WrappedPeriod::Week:
    case WrappedPeriod::LastWeek:
        break;
    }
    return {18.4, 12, {8.2, 4.1, 2.6}};
}

/// A number from 0 to 1 that looks like chance and is always the same.
double chance(int seed) {
    const auto mixed = static_cast<std::uint32_t>(seed) * 2654435761U;
    return static_cast<double>((mixed ^ (mixed >> 15U)) % 1000U) / 1000.0;
}

/// The days of this year up to now, with rests, and a skill that is worked on for some weeks.
std::vector<WrappedStats::WorkedDay> workedDays(const WrappedSettings& settings) {
    constexpr int kDays = 324;
    std::vector<WrappedStats::WorkedDay> days;
    const Date today = settings.calendar.startOfDay(settings.now);
    for (int back = kDays; back >= 0; --back) {
        // From the middle of a day, which no change of the clock moves to another one.
        const Date day = settings.calendar.startOfDay(today - Seconds(kDay * (back - 0.5)));
        const double luck = chance(back);
        if (luck < (back % 7 == 5 ? 0.75 : 0.2) && back > 0) continue;
        const bool strayed = chance(back + 1000) < 0.3;
        const auto skill = static_cast<std::size_t>(strayed ? back * 5 % 6 : back / 45 % 3);
        days.push_back({day, 0.3 + 2.4 * luck, settings.skills[skill].hexRGB});
    }
    return days;
}

std::vector<totals::DotRun> dotRuns(double hours, const std::vector<Skill>& skills) {
    std::vector<totals::DotRun> runs;
    auto left = static_cast<std::int64_t>(hours);
    for (int i = 0; left > 0; ++i) {
        const auto count = std::min<std::int64_t>(left, 1 + static_cast<int>(4 * chance(i + 77)));
        runs.push_back({skills[static_cast<std::size_t>(i * 7 % 6)], count});
        left -= count;
    }
    return runs;
}

} // namespace

WrappedSettings posterSettings() {
    WrappedSettings settings;
    settings.now = at("2025-11-21T14:30:00Z");
    settings.calendar = {QStringLiteral("Europe/Berlin"), 2, 4, QStringLiteral("en_US")};
    settings.skills = seeds();
    return settings;
}

WrappedStats posterStats(WrappedPeriod period, const QString& personaName) {
    const WrappedSettings settings = posterSettings();
    const Figures sample = figures(period);
    WrappedStats stats;
    stats.period = period;
    stats.sessionCount = sample.sessions;
    stats.totalHours = sample.hours;
    for (std::size_t i = 0; i < sample.skillHours.size(); ++i)
        stats.skillHours.push_back({settings.skills[i], sample.skillHours[i]});
    stats.workedDays = workedDays(settings);
    const auto start = wrappedperiod::start(period, settings.now, settings.calendar);
    const auto end = wrappedperiod::end(period, settings.now, settings.calendar);
    stats.activeDays =
        static_cast<int>(std::ranges::count_if(stats.workedDays, [&](const auto& day) {
            return (!start || day.day >= *start) && (!end || day.day < *end);
        }));
    stats.activeYears = {2025};
    stats.hourDots = dotRuns(sample.hours, settings.skills);
    if (!personaName.isEmpty()) {
        const auto colors = builderpersona::gradient(personaName);
        stats.persona = BuilderPersona{personaName, {}, {}, {}, colors.start, colors.end};
    }
    return stats;
}

SharePoster sharePoster(WrappedPeriod period, const QString& personaName) {
    return reviewcards::poster(posterStats(period, personaName), posterSettings());
}

} // namespace vantle::samples
