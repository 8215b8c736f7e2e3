#include "review/stats/BuilderPersona.h"

#include "review/stats/ReviewSamples.h"

#include <gtest/gtest.h>

#include <set>

namespace vantle {
namespace {

using namespace builderpersona;
using samples::worked;

const Calendar kUtc = samples::calendarIn(QStringLiteral("UTC"));

Axes axesOf(const std::vector<Session>& sessions) { return axes(refsTo(sessions), kUtc).value(); }

/// Sessions of such lengths in seconds, each of its own skill, at noon.
std::vector<Session> ofSkills(const std::vector<std::int64_t>& lengths) {
    std::vector<Session> sessions;
    for (const std::int64_t seconds : lengths) {
        sessions.push_back(
            worked("2026-03-10T12:00:00Z", 1, QStringLiteral("s%1").arg(sessions.size())));
        sessions.back().activeSeconds = seconds;
    }
    return sessions;
}

TEST(BuilderPersona, NoSessionsHaveNoPersona) {
    EXPECT_EQ(compute({}, kUtc, DurationStyle::Natural), std::nullopt);
}

TEST(BuilderPersona, AGradientGoesFromOneColourToAnother) {
    const std::vector<Session> sessions = ofSkills({3600, 3600, 3600});
    const auto persona = compute(refsTo(sessions), kUtc, DurationStyle::Natural);
    ASSERT_TRUE(persona);
    EXPECT_NE(persona->startHex, 0U);
    EXPECT_NE(persona->endHex, 0U);
    EXPECT_NE(persona->startHex, persona->endHex);
}

TEST(BuilderPersona, TheEarlierOfTwoEqualPartsOfTheDayWins) {
    const std::vector sessions = {worked("2026-03-10T19:00:00Z", 30),
                                  worked("2026-03-10T07:00:00Z", 30)};
    EXPECT_EQ(axesOf(sessions).when, DayPart::Morning);
}

TEST(BuilderPersona, FourEqualPartsOfTheDayAreNone) {
    const std::vector sessions = {
        worked("2026-03-10T07:00:00Z", 30), worked("2026-03-10T13:00:00Z", 30),
        worked("2026-03-10T19:00:00Z", 30), worked("2026-03-10T01:00:00Z", 30)};
    EXPECT_EQ(axesOf(sessions).when, DayPart::Anytime);
}

TEST(BuilderPersona, APartOfTheDayNeeds45InAHundred) {
    std::vector sessions = {worked("2026-03-10T07:00:00Z", 45), worked("2026-03-10T13:00:00Z", 30),
                            worked("2026-03-10T19:00:00Z", 25)};
    EXPECT_EQ(axesOf(sessions).when, DayPart::Morning);
    sessions[1].activeSeconds += 1;
    EXPECT_EQ(axesOf(sessions).when, DayPart::Anytime);
}

TEST(BuilderPersona, PartsOfTheDayBeginWithTheirHours) {
    const auto when = [](const char* at) {
        Session moment = worked(at, 0);
        return axesOf({moment}).when;
    };
    EXPECT_EQ(when("2026-03-10T04:59:59Z"), DayPart::Night);
    EXPECT_EQ(when("2026-03-10T05:00:00Z"), DayPart::Morning);
    EXPECT_EQ(when("2026-03-10T11:59:59Z"), DayPart::Morning);
    EXPECT_EQ(when("2026-03-10T12:00:00Z"), DayPart::Daylight);
    EXPECT_EQ(when("2026-03-10T18:00:00Z"), DayPart::Evening);
    EXPECT_EQ(when("2026-03-10T22:59:59Z"), DayPart::Evening);
    EXPECT_EQ(when("2026-03-10T23:00:00Z"), DayPart::Night);
}

TEST(BuilderPersona, ASessionLiesWhereItsMiddleLies) {
    EXPECT_EQ(axesOf({worked("2026-03-10T22:00:00Z", 240)}).when, DayPart::Night);
    // Half a second before five it is still night.
    Session odd = worked("2026-03-10T03:59:59Z", 0);
    odd.endedAt = odd.startedAt + Seconds(7201);
    EXPECT_EQ(axesOf({odd}).when, DayPart::Night);
    odd.endedAt += Seconds(1);
    EXPECT_EQ(axesOf({odd}).when, DayPart::Morning);
}

TEST(BuilderPersona, StylesTakeTheirLimits) {
    EXPECT_EQ(axesOf(ofSkills({1500})).style, Style::Sprint);
    EXPECT_EQ(axesOf(ofSkills({1500, 1501})).style, Style::Steady);
    EXPECT_EQ(axesOf(ofSkills({4500, 4499})).style, Style::Steady);
    EXPECT_EQ(axesOf(ofSkills({4500})).style, Style::Marathon);
}

TEST(BuilderPersona, FocusTakesItsLimits) {
    EXPECT_EQ(axesOf(ofSkills({700, 300})).focus, Focus::Focused);
    EXPECT_EQ(axesOf(ofSkills({699, 301})).focus, Focus::Balanced);
    EXPECT_EQ(axesOf(ofSkills({500, 500})).focus, Focus::Balanced);
    // Three of exactly 0.15, the rest in crumbs.
    EXPECT_EQ(axesOf(ofSkills({150, 150, 150, 140, 140, 140, 130})).focus, Focus::Multi);
    EXPECT_EQ(axesOf(ofSkills({150, 150, 149, 140, 140, 140, 131})).focus, Focus::Balanced);
}

TEST(BuilderPersona, ASessionOfNoSecondsWeighsOne) {
    EXPECT_EQ(axesOf(ofSkills({0, 0, 0})).averageSeconds, 1.0);
    EXPECT_EQ(axesOf(ofSkills({0, 99})).averageSeconds, 50.0);
}

TEST(BuilderPersona, ThePaceIsWrittenInTheUsersStyle) {
    const auto sessions = ofSkills({5400, 5401}); // 5400.5 on average
    const auto pace = [&](DurationStyle style) {
        return compute(refsTo(sessions), kUtc, style)->paceFact;
    };
    EXPECT_EQ(pace(DurationStyle::Natural), QStringLiteral("1 h 30 min average"));
    EXPECT_EQ(pace(DurationStyle::Minutes), QStringLiteral("90 min average"));
    EXPECT_EQ(pace(DurationStyle::Clock), QStringLiteral("1:30:01 average"));
}

TEST(BuilderPersona, HoursAreThoseOfTheCalendarsZone) {
    const std::vector sessions = {worked("2026-03-10T07:00:00Z", 10)};
    const auto auckland = samples::calendarIn(QStringLiteral("Pacific/Auckland"));
    EXPECT_EQ(axes(refsTo(sessions), auckland)->when, DayPart::Evening);
}

TEST(BuilderPersona, EveryCombinationHasANameALineAndColours) {
    std::set<QString> names;
    for (const DayPart when : allDayParts) {
        for (const Style style : allStyles) {
            for (const Focus focus : allFocuses) {
                const QString given = name(when, style, focus);
                names.insert(given);
                EXPECT_FALSE(line(given, when).isEmpty());
                EXPECT_NE(symbol(given), QStringLiteral("hammer.fill"));
            }
        }
    }
    EXPECT_EQ(names.size(), 11u);
}

TEST(BuilderPersona, EarlyAndLateHoursOutweighTheRest) {
    for (const Focus focus : allFocuses) {
        EXPECT_EQ(name(DayPart::Morning, Style::Sprint, focus), QStringLiteral("Early Bird"));
        EXPECT_EQ(name(DayPart::Night, Style::Marathon, focus), QStringLiteral("Night Owl"));
        EXPECT_EQ(name(DayPart::Night, Style::Sprint, focus), QStringLiteral("Night Shift"));
    }
    EXPECT_EQ(name(DayPart::Anytime, Style::Steady, Focus::Balanced),
              QStringLiteral("All Rounder"));
}

TEST(BuilderPersona, TheLinesOfQuickHitterCoverEveryPartOfTheDay) {
    std::set<QString> lines;
    for (const DayPart when : allDayParts)
        lines.insert(line(QStringLiteral("Quick Hitter"), when));
    EXPECT_EQ(lines.size(), allDayParts.size());
}

TEST(BuilderPersona, AnUnknownNameHasTheColoursOfAllRounder) {
    const QString unknown = QStringLiteral("Nobody");
    EXPECT_EQ(gradient(unknown).start, 0xACF35Cu);
    EXPECT_EQ(gradient(unknown).end, 0x30D158u);
    EXPECT_EQ(symbol(unknown), QStringLiteral("hammer.fill"));
    EXPECT_EQ(line(unknown, DayPart::Night), QString());
    EXPECT_EQ(artworkName(QStringLiteral("Early Bird")), QStringLiteral("persona-early-bird"));
}

} // namespace
} // namespace vantle
