// Totals that add up, splits that lose no second, and durations that never read backwards.
#include "tracking/DashFormat.h"
#include "tracking/Generators.h"
#include "tracking/SessionGroup.h"
#include "tracking/Totals.h"
#include "tracking/TrackingWorld.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <numeric>

namespace vantle {
namespace {

using Sessions = std::vector<Session>;

/// After every generated record, so that all of them count.
const Date kNow = dateFromEpoch(1'780'000'000);

std::int64_t sumOf(const Sessions& sessions) {
    return std::accumulate(
        sessions.begin(), sessions.end(), std::int64_t{0},
        [](std::int64_t sum, const Session& session) { return sum + session.activeSeconds; });
}

/// `session` in parts that follow each other without a gap, its seconds shared out.
Sessions split(const Session& session, int parts) {
    Sessions result;
    std::int64_t left = session.activeSeconds;
    Date begin = session.startedAt;
    for (int part = 0; part < parts; ++part) {
        Session piece = session;
        piece.id = QUuid::createUuid();
        const bool last = part == parts - 1;
        piece.activeSeconds = last ? left : *rc::gen::inRange<std::int64_t>(0, left + 1);
        piece.startedAt = begin;
        piece.endedAt =
            last ? session.endedAt : begin + Seconds(static_cast<double>(piece.activeSeconds));
        begin = piece.endedAt;
        left -= piece.activeSeconds;
        result.push_back(piece);
    }
    return result;
}

std::vector<int> badgeHours(const Sessions& sessions) {
    std::vector<int> hours;
    for (const auto& badge : totals::badges(sessions, kNow))
        hours.push_back(badge.hours);
    return hours;
}

RC_GTEST_PROP(TotalsProperties, TheWallHasADotForEveryWholeHour, ()) {
    const Sessions sessions = *generators::history();
    const auto count = sumOf(sessions) / 3600;
    RC_ASSERT(totals::hourDotCount(sessions, kNow) == count);
    RC_ASSERT(totals::hourDots(sessions, kNow, samples::seeds()).size() == std::size_t(count));
    const auto runs = totals::hourDotRuns(sessions, kNow, samples::seeds());
    std::int64_t inRuns = 0;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        RC_ASSERT(runs[i].count > 0);
        if (i > 0) RC_ASSERT(runs[i].skill.id != runs[i - 1].skill.id);
        inRuns += runs[i].count;
    }
    RC_ASSERT(inRuns == count);
}

RC_GTEST_PROP(TotalsProperties, TodayIsPartOfTheWeekAndTheWeekOfAllTime, ()) {
    const Sessions sessions = *generators::history();
    const Date now = dateFromEpoch(1'772'000'000.0 + *rc::gen::inRange(0, 3'000'000));
    const Calendar calendar{QStringLiteral("America/New_York"), *rc::gen::inRange(1, 8), 1};
    const double today = totals::hours(sessions, now, calendar).today;
    const double week = totals::hours(sessions, now, calendar).thisWeek;
    RC_ASSERT(today >= 0);
    RC_ASSERT(today <= week);
    RC_ASSERT(week <= totals::hours(sessions, now, calendar).allTime);
}

RC_GTEST_PROP(TotalsProperties, TheSkillsTogetherAreAllTimeWhenAllOfThemAreKnown, ()) {
    const Sessions sessions = *generators::history();
    std::vector<Skill> skills = samples::seeds();
    const auto sum = [&] {
        double hours = 0;
        for (const auto& entry : totals::perSkillTotals(sessions, kNow, skills))
            hours += entry.hours;
        return hours;
    };
    const double all = static_cast<double>(totals::secondsAllTime(sessions, kNow)) / 3600;
    RC_ASSERT(sum() <= all + 1e-9);
    skills.push_back(samples::skill(QStringLiteral("code")));
    skills.push_back(samples::skill(QStringLiteral("old_thing")));
    RC_ASSERT(std::abs(sum() - all) < 1e-9);
}

RC_GTEST_PROP(TotalsProperties, BadgesAreTheRungsThatTheTotalHasReached, ()) {
    Sessions sessions = *generators::history();
    for (Session& session : sessions)
        session.activeSeconds *= 15; // towards the higher rungs
    const auto badges = totals::badges(sessions, kNow);
    const auto reached = std::ranges::count_if(totals::milestoneLadder, [&](int rung) {
        return std::int64_t{rung} * 3600 <= sumOf(sessions);
    });
    RC_ASSERT(std::int64_t(badges.size()) == reached);
    for (std::size_t i = 0; i < badges.size(); ++i) {
        RC_ASSERT(badges[i].hours == totals::milestoneLadder[i]);
        if (i > 0) RC_ASSERT(badges[i].earnedAt >= badges[i - 1].earnedAt);
    }
}

RC_GTEST_PROP(TotalsProperties, ASplitSessionKeepsEveryTotal, ()) {
    Sessions whole = *rc::gen::nonEmpty(generators::history());
    const auto index = *rc::gen::inRange<std::size_t>(0, whole.size());
    const Sessions pieces = split(whole[index], *rc::gen::inRange(1, 20));
    Sessions parts(whole.begin(), whole.begin() + std::ptrdiff_t(index));
    parts.insert(parts.end(), pieces.begin(), pieces.end());
    parts.insert(parts.end(), whole.begin() + std::ptrdiff_t(index) + 1, whole.end());
    RC_ASSERT(sumOf(parts) == sumOf(whole));
    RC_ASSERT(totals::secondsAllTime(parts, kNow) == totals::secondsAllTime(whole, kNow));
    RC_ASSERT(totals::hourDotCount(parts, kNow) == totals::hourDotCount(whole, kNow));
    RC_ASSERT(badgeHours(parts) == badgeHours(whole));
}

RC_GTEST_PROP(TotalsProperties, GroupsLoseNoSecondAndMergeWhatASplitCut, ()) {
    const Sessions sessions = *generators::history();
    const auto groups = SessionGroup::grouped(sessions);
    RC_ASSERT(groups.size() <= sessions.size());
    std::int64_t seconds = 0;
    for (const SessionGroup& group : groups)
        seconds += group.seconds;
    RC_ASSERT(seconds == sumOf(sessions));

    const auto wanted = *rc::gen::inRange<std::size_t>(0, groups.size() + 2);
    const auto newest = SessionGroup::grouped(sessions, wanted);
    RC_ASSERT(newest.size() == std::min(wanted, groups.size()));
    RC_ASSERT(std::equal(newest.rbegin(), newest.rend(), groups.rbegin(),
                         [](const SessionGroup& one, const SessionGroup& other) {
                             return one.id == other.id && one.seconds == other.seconds &&
                                    one.endedAt == other.endedAt &&
                                    one.allManual == other.allManual;
                         }));

    Session one = *generators::acceptableSession();
    one.activeSeconds = static_cast<std::int64_t>((one.endedAt - one.startedAt).count());
    const auto merged = SessionGroup::grouped(split(one, *rc::gen::inRange(1, 20)));
    RC_ASSERT(merged.size() == 1u);
    RC_ASSERT(merged[0].seconds == one.activeSeconds);
    RC_ASSERT(merged[0].endedAt == one.endedAt);
}

RC_GTEST_PROP(TrackerProperties, ASessionSplitByChangesOfSkillLosesNoSecond, ()) {
    TrackingWorld world;
    const auto lengths =
        *rc::gen::nonEmpty(rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 400)));
    std::int64_t worked = 0;
    world.tracker.start(samples::skill(QStringLiteral("building")), 0);
    for (const int length : lengths) {
        world.time.advance(length);
        worked += length;
        RC_ASSERT(world.tracker.stop().has_value());
        world.tracker.start(samples::skill(QStringLiteral("code")), 0);
    }
    world.tracker.stop();
    RC_ASSERT(sumOf(world.tracker.allSessions()) == worked);
}

RC_GTEST_PROP(TrackerProperties, WhateverIsPressedOnlyTimeThatWasWorkedCounts, ()) {
    TrackingWorld world;
    TrackerCore& tracker = world.tracker;
    double running = 0;
    tracker.start(samples::skill(QStringLiteral("building")), 0);
    const auto moves = *rc::gen::container<std::vector<std::pair<int, int>>>(
        rc::gen::pair(rc::gen::inRange(0, 4), rc::gen::inRange(0, 8 * 300)));
    for (const auto& [move, eighths] : moves) {
        if (tracker.state() == TrackerCore::State::Running) running += eighths / 8.0;
        world.time.advance(eighths / 8.0);
        if (move == 0) tracker.pause(world.time.now());
        if (move == 1) tracker.resume();
        RC_ASSERT(tracker.displayActiveSeconds() == std::int64_t(running));
        // All fields of the open session agree with its state.
        const auto inner = tracker.internals();
        const bool isRunning = tracker.state() == TrackerCore::State::Running;
        RC_ASSERT(inner.ticking == isRunning);
        RC_ASSERT(inner.segmentStart.has_value() == isRunning);
        RC_ASSERT(inner.ticksSinceMarkerWrite < 60);
    }
    const auto session = tracker.stop();
    RC_ASSERT(session.has_value());
    RC_ASSERT(session->activeSeconds == std::llround(running));
}

/// The seconds that a clock shows.
std::int64_t secondsOn(const QString& clock) {
    std::int64_t seconds = 0;
    for (const QString& part : clock.split(QLatin1Char(':')))
        seconds = seconds * 60 + part.toLongLong();
    return seconds;
}

RC_GTEST_PROP(FormatProperties, AClockShowsEverySecondAndNeverGoesBackwards, ()) {
    const auto seconds = *rc::gen::weightedOneOf<std::int64_t>(
        {{1, rc::gen::inRange<std::int64_t>(-10, 100'000)},
         {1, rc::gen::inRange<std::int64_t>(-1'000'000, 1'000'000'000'000)}});
    RC_ASSERT(secondsOn(dashformat::clock(seconds)) == std::max<std::int64_t>(seconds, 0));
    RC_ASSERT(dashformat::sessionDuration(seconds, DurationStyle::Clock) ==
              dashformat::clock(seconds));
}

RC_GTEST_PROP(FormatProperties, MoreHoursNeverReadAsFewerMinutes, ()) {
    const double less = *rc::gen::inRange(0, 4'000'000) / 97.0;
    const double more = less + *rc::gen::inRange(0, 1000) / 997.0;
    const auto minutes = [](double hours) {
        return dashformat::statValue(hours, DurationStyle::Minutes)
            .value.remove(QLatin1Char(','))
            .toLongLong();
    };
    RC_ASSERT(minutes(less) <= minutes(more));
    RC_ASSERT(secondsOn(dashformat::inlineHours(less, DurationStyle::Clock)) <=
              secondsOn(dashformat::inlineHours(more, DurationStyle::Clock)));
}

RC_GTEST_PROP(FormatProperties, EveryDurationHasAText, ()) {
    const auto seconds = *rc::gen::arbitrary<std::int64_t>();
    for (const DurationStyle style : durationstyle::all) {
        RC_ASSERT(!dashformat::sessionDuration(seconds, style).isEmpty());
        RC_ASSERT(!dashformat::inlineHours(static_cast<double>(seconds) / 3600.0, style).isEmpty());
    }
}

RC_GTEST_PROP(FormatProperties, TheNextMilestoneLiesAhead, ()) {
    const double hours = *rc::gen::inRange(-100, 2'000'000) / 100.0;
    const double next = dashformat::nextMilestone(hours);
    RC_ASSERT(next > hours || next == 10000.0);
    RC_ASSERT(std::ranges::count(totals::milestoneLadder, int(next)) == 1);
}

RC_GTEST_PROP(SkillProperties, NamesAndKeysAreCleanedOnceAndForAll, ()) {
    const QString name = *generators::text(30);
    const QString cleaned = Skill::cleanedName(name);
    const QString key = Skill::comparisonKey(name);
    RC_ASSERT(Skill::cleanedName(cleaned) == cleaned);
    RC_ASSERT(Skill::comparisonKey(cleaned) == key);
    // A mark between two blanks goes with the fold, and leaves both of them.
    if (Skill::cleanedName(key) == key) RC_ASSERT(Skill::comparisonKey(key) == key);
}

} // namespace
} // namespace vantle
