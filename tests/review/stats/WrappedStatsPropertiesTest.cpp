// Reviews that add up, whatever the log, the zone and the moment.
#include "review/stats/ReviewSamples.h"
#include "tracking/Generators.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace vantle {
namespace {

using Sessions = std::vector<Session>;

bool isNear(double left, double right) { return std::abs(left - right) < 1e-9; }

/// A moment among the generated records or after them, anywhere.
WrappedSettings someSettings() {
    WrappedSettings settings;
    settings.now = dateFromEpoch(1'771'000'000.0 + *rc::gen::inRange(0, 5'000'000));
    settings.calendar = samples::calendarIn(QLatin1String(
        *rc::gen::element<const char*>("UTC", "Europe/Berlin", "America/New_York",
                                       "America/Sao_Paulo", "Asia/Kathmandu", "Pacific/Apia")));
    settings.calendar.firstWeekday = *rc::gen::inRange(1, 8);
    settings.skills = samples::seeds();
    settings.dailyGoalHours = *rc::gen::inRange(0, 10) / 2.0;
    return settings;
}

WrappedPeriod somePeriod() { return *rc::gen::elementOf(wrappedperiod::all); }

RC_GTEST_PROP(WrappedStatsProperties, HoursAddUpInEveryWay, ()) {
    const Sessions sessions = *generators::history();
    const WrappedSettings settings = someSettings();
    const auto stats = WrappedStats::compute(sessions, somePeriod(), settings);
    double ofSkills = 0;
    for (const auto& entry : stats.skillHours)
        ofSkills += entry.hours;
    RC_ASSERT(isNear(ofSkills, stats.totalHours));
    RC_ASSERT(isNear(stats.verifiedHours + stats.manualHours, stats.totalHours));
    const auto dots = std::accumulate(
        stats.hourDots.begin(), stats.hourDots.end(), std::int64_t{0},
        [](std::int64_t sum, const totals::DotRun& run) { return sum + run.count; });
    RC_ASSERT(dots == static_cast<std::int64_t>(std::floor(stats.totalHours + 1e-9)));

    double ofDays = 0;
    for (const auto& day : stats.workedDays)
        ofDays += day.hours;
    const auto allTime = WrappedStats::compute(sessions, WrappedPeriod::AllTime, settings);
    RC_ASSERT(isNear(ofDays, allTime.totalHours));
}

RC_GTEST_PROP(WrappedStatsProperties, APeriodIsTheSumOfItsDays, ()) {
    const Sessions sessions = *generators::history();
    const WrappedSettings settings = someSettings();
    const WrappedPeriod period = somePeriod();
    const auto start = wrappedperiod::start(period, settings.now, settings.calendar);
    const auto end = wrappedperiod::end(period, settings.now, settings.calendar);
    const auto stats = WrappedStats::compute(sessions, period, settings);
    double hours = 0;
    double most = 0;
    int days = 0;
    for (const auto& day : stats.workedDays) {
        if ((start && day.day < *start) || (end && day.day >= *end)) continue;
        hours += day.hours;
        most = std::max(most, day.hours);
        days += day.hours > 0 ? 1 : 0;
    }
    RC_ASSERT(isNear(hours, stats.totalHours));
    RC_ASSERT(days == stats.activeDays);
    RC_ASSERT(isNear(most, stats.biggestDay ? stats.biggestDay->hours : 0.0));
    RC_ASSERT(stats.goalHitDays <= stats.activeDays);
}

RC_GTEST_PROP(WrappedStatsProperties, MilestonesShowTheDotsOfTheWholeLog, ()) {
    const Sessions sessions = *generators::history();
    const WrappedSettings settings = someSettings();
    const auto stats = WrappedStats::compute(sessions, somePeriod(), settings);
    auto all = totals::hourDotRuns(sessions, settings.now, settings.skills);
    if (stats.milestones.empty()) all.clear();
    const auto isSame = [](const totals::DotRun& left, const totals::DotRun& right) {
        return left.count == right.count && left.skill == right.skill;
    };
    RC_ASSERT(std::ranges::equal(stats.milestoneDots, all, isSame));
}

RC_GTEST_PROP(WrappedStatsProperties, NoPeriodCountsASessionTwice, ()) {
    const Sessions sessions = *generators::history();
    const WrappedSettings settings = someSettings();
    const auto stats = [&](WrappedPeriod period) {
        return WrappedStats::compute(sessions, period, settings);
    };
    const auto allTime = stats(WrappedPeriod::AllTime);
    const auto thisWeek = stats(WrappedPeriod::Week);
    const auto lastWeek = stats(WrappedPeriod::LastWeek);
    RC_ASSERT(allTime.sessionCount <= int(sessions.size()));
    RC_ASSERT(thisWeek.sessionCount + lastWeek.sessionCount <= allTime.sessionCount);
    RC_ASSERT(stats(WrappedPeriod::Today).sessionCount <= thisWeek.sessionCount);
    RC_ASSERT(stats(WrappedPeriod::Month).sessionCount <= allTime.sessionCount);
    RC_ASSERT(isNear(thisWeek.lastWeekHours.value_or(0), lastWeek.totalHours));
}

/// Everything but what depends on the order of the records by rule: the first of equally long
/// sessions, and who completed an hour or a badge.
void assertEqualButForTies(const WrappedStats& left, const WrappedStats& right) {
    RC_ASSERT(left.sessionCount == right.sessionCount);
    RC_ASSERT(left.totalHours == right.totalHours);
    RC_ASSERT(left.verifiedHours == right.verifiedHours);
    RC_ASSERT(left.notedSessionCount == right.notedSessionCount);
    RC_ASSERT(left.activeDays == right.activeDays);
    RC_ASSERT(left.goalHitDays == right.goalHitDays);
    RC_ASSERT(left.activeYears == right.activeYears);
    RC_ASSERT(left.typicalStart == right.typicalStart);
    RC_ASSERT(left.startRhythm == right.startRhythm);
    RC_ASSERT(left.noteDigest == right.noteDigest);
    RC_ASSERT(left.persona == right.persona);
    RC_ASSERT(left.personaSessionCount == right.personaSessionCount);
    RC_ASSERT(left.personaScope == right.personaScope);
    RC_ASSERT(left.lastWeekHours == right.lastWeekHours);
    RC_ASSERT(std::ranges::equal(left.skillHours, right.skillHours, [](auto& a, auto& b) {
        return a.skill == b.skill && a.hours == b.hours;
    }));
    RC_ASSERT(std::ranges::equal(left.workedDays, right.workedDays, [](auto& a, auto& b) {
        return a.day == b.day && a.hours == b.hours && a.hexRGB == b.hexRGB;
    }));
    RC_ASSERT(left.biggestDay.has_value() == right.biggestDay.has_value());
    if (left.biggestDay) RC_ASSERT(left.biggestDay->day == right.biggestDay->day);
    RC_ASSERT(left.longest.has_value() == right.longest.has_value());
    if (left.longest) RC_ASSERT(left.longest->activeSeconds == right.longest->activeSeconds);
}

RC_GTEST_PROP(WrappedStatsProperties, TheOrderOfTheRecordsMattersOnlyToTies, ()) {
    const Sessions sessions = *generators::history();
    Sessions shuffled = sessions;
    for (std::size_t i = 1; i < shuffled.size(); ++i)
        std::swap(shuffled[i], shuffled[*rc::gen::inRange<std::size_t>(0, i + 1)]);
    const WrappedSettings settings = someSettings();
    const WrappedPeriod period = somePeriod();
    assertEqualButForTies(WrappedStats::compute(sessions, period, settings),
                          WrappedStats::compute(shuffled, period, settings));
}

RC_GTEST_PROP(WrappedStatsProperties, ListsAreSortedAndShort, ()) {
    const auto stats = WrappedStats::compute(*generators::history(), somePeriod(), someSettings());
    RC_ASSERT(
        std::ranges::is_sorted(stats.skillHours, std::greater{}, &WrappedStats::SkillHours::hours));
    RC_ASSERT(std::ranges::is_sorted(stats.workedDays, {}, &WrappedStats::WorkedDay::day));
    RC_ASSERT(std::ranges::is_sorted(stats.activeYears, std::greater{}));
    RC_ASSERT(std::ranges::is_sorted(stats.superlatives, std::greater{}, &SuperlativeLine::score));
    RC_ASSERT(stats.superlatives.size() <= 3u);
    RC_ASSERT(!stats.persona || stats.personaSessionCount >= 5);
    RC_ASSERT(stats.sessionCount >= 3 || !stats.startRhythm);
    if (stats.startRhythm)
        RC_ASSERT(std::accumulate(stats.startRhythm->counts.begin(),
                                  stats.startRhythm->counts.end(), 0) == stats.sessionCount);
}

} // namespace
} // namespace vantle
