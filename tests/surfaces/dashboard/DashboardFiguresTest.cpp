#include "surfaces/dashboard/DashboardFigures.h"

#include "support/QtPrinters.h"
#include "tracking/Samples.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using dashboard::wallCells;

/// Monday, 2026-03-02 at noon.
DashboardSetting setting() {
    return {samples::at("2026-03-02T12:00:00Z"), Calendar{QStringLiteral("UTC"), 2, 4},
            samples::seeds(), DurationStyle::Natural, 2};
}

/// A session of so many hours that ended then.
Session worked(const char* end, double hours, const char* skill = "building") {
    static int number = 0;
    Session session =
        samples::sessionEnding(samples::at(end), static_cast<std::int64_t>(hours * 3600));
    session.id = samples::id(++number);
    session.skillId = QString::fromLatin1(skill);
    return session;
}

/// Sessions of an hour, one a day before now.
std::vector<Session> hours(int count) {
    std::vector<Session> sessions;
    for (int i = count; i > 0; --i) {
        Session session = worked("2026-03-01T12:00:00Z", 1);
        session.startedAt -= Seconds(86400.0 * i);
        session.endedAt -= Seconds(86400.0 * i);
        sessions.push_back(session);
    }
    return sessions;
}

TEST(DashboardFigures, BlocksWithoutHoursInviteEvenBesideOnesWithValues) {
    const auto stats = dashboard::stats({worked("2026-02-27T10:00:00Z", 3)}, setting());
    ASSERT_EQ(stats.size(), 3U);
    EXPECT_EQ(stats[0].value, QString());
    EXPECT_EQ(stats[0].invitation, QStringLiteral("2 h goal · a session starts the bar"));
    EXPECT_EQ(stats[1].value, QString());
    EXPECT_EQ(stats[2].value, QStringLiteral("3"));
    EXPECT_EQ(stats[2].context, QStringLiteral("next milestone 10 h"));
    EXPECT_DOUBLE_EQ(stats[2].fraction, 0.3);
    EXPECT_EQ(dashboard::stats({}, setting())[2].invitation,
              QStringLiteral("Your first dot lights at 1 h"));
}

TEST(DashboardFigures, WeeksGoalIsSevenDaysAlsoOnMonday) {
    const auto stats = dashboard::stats({worked("2026-03-02T10:00:00Z", 1)}, setting());
    EXPECT_EQ(stats[0].context, QStringLiteral("of 2 h goal"));
    EXPECT_EQ(stats[1].context, QStringLiteral("of 14 h"));
    EXPECT_DOUBLE_EQ(stats[1].fraction, 1.0 / 14);
}

TEST(DashboardFigures, FractionAboveOneIsPassedOn) {
    const auto stats = dashboard::stats({worked("2026-03-02T10:00:00Z", 5)}, setting());
    EXPECT_DOUBLE_EQ(stats[0].fraction, 2.5);
}

TEST(DashboardFigures, WallHoldsTheLastHoursItHasRoomFor) {
    auto sessions = hours(wallCells);
    sessions.front().skillId = QStringLiteral("product_design");
    const QColor design = QColor::fromRgb(0xBF5AF2);
    EXPECT_EQ(dashboard::wallColors(sessions, setting()).front(), design);
    sessions.push_back(worked("2026-03-02T10:00:00Z", 1));
    const auto colors = dashboard::wallColors(sessions, setting());
    EXPECT_EQ(colors.size(), wallCells);
    EXPECT_FALSE(colors.contains(design));
}

TEST(DashboardFigures, WallOfAMillionHoursIsNotBuiltDotByDot) {
    std::vector<Session> sessions;
    Session session = worked("2020-01-01T00:00:00Z", 168);
    for (int i = 0; i < 6000; ++i)
        sessions.push_back(session);
    EXPECT_EQ(dashboard::wallColors(sessions, setting()).size(), wallCells);
}

TEST(DashboardFigures, WallTellsHowManyHoursThereAre) {
    EXPECT_EQ(dashboard::wallText(0), QStringLiteral("Your first hour lights the first dot"));
    EXPECT_EQ(dashboard::wallText(1), QStringLiteral("1 hour"));
    EXPECT_EQ(dashboard::wallText(46), QStringLiteral("46 hours"));
}

TEST(DashboardFigures, CurrentHourIsTheRestOfTheLogAndTheOpenSession) {
    EXPECT_DOUBLE_EQ(dashboard::partialFraction(5400, 0), 0.5);
    EXPECT_DOUBLE_EQ(dashboard::partialFraction(5400, 900), 0.75);
    EXPECT_DOUBLE_EQ(dashboard::partialFraction(5400, -900), 0.5);
    EXPECT_DOUBLE_EQ(dashboard::partialFraction(3599, 7200), 0.999);
}

TEST(DashboardFigures, FullWallAndAMereTraceHaveNoSlice) {
    EXPECT_EQ(dashboard::sliceFraction(0.5, wallCells), 0);
    EXPECT_EQ(dashboard::sliceFraction(0.5, wallCells + 100), 0);
    EXPECT_EQ(dashboard::sliceFraction(0.5, wallCells - 1), 0.5);
    EXPECT_EQ(dashboard::sliceFraction(0.02, 0), 0);
    EXPECT_GT(dashboard::sliceFraction(0.021, 0), 0);
}

TEST(DashboardFigures, WallIsReadOut) {
    EXPECT_EQ(dashboard::wallLabel(46, 0.305),
              QStringLiteral("Hour wall, 46 completed hours, current hour 31 percent complete"));
}

TEST(DashboardFigures, SkillsWithHoursStandInTheirOrder) {
    const auto lines =
        dashboard::skillTotals({worked("2026-02-01T10:00:00Z", 1, "building"),
                                worked("2026-02-02T10:00:00Z", 3, "product_design"),
                                worked("2026-02-03T10:00:00Z", 9, "a skill that is gone")},
                               setting());
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].name, QStringLiteral("Design"));
    EXPECT_EQ(lines[0].hours, QStringLiteral("3 h"));
    EXPECT_EQ(lines[0].share, QStringLiteral("75%"));
    EXPECT_EQ(lines[0].fraction, 1);
    EXPECT_DOUBLE_EQ(lines[1].fraction, 1.0 / 3);
}

TEST(DashboardFigures, SomethingNeverReadsAsNothing) {
    EXPECT_EQ(dashboard::shareText(0.4, 100), QStringLiteral("<1%"));
    EXPECT_EQ(dashboard::shareText(0.5, 100), QStringLiteral("0%"));
    EXPECT_EQ(dashboard::shareText(1.5, 100), QStringLiteral("2%"));
    EXPECT_EQ(dashboard::shareText(100, 100), QStringLiteral("100%"));
}

TEST(DashboardFigures, SixNewestGroupsAreShownNewestFirst) {
    const auto sessions = hours(7);
    const auto lines = dashboard::recent(sessions, setting());
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines.front().date, QStringLiteral("Feb 28 · 12:00"));
    EXPECT_EQ(lines.back().date, QStringLiteral("Feb 23 · 12:00"));
}

TEST(DashboardFigures, RowLoggedByHandSaysSo) {
    Session session = worked("2026-02-28T12:00:00Z", 0.5, "gone");
    session.source = sourceManual();
    const auto lines = dashboard::recent({session}, setting());
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_TRUE(lines[0].isManual);
    EXPECT_EQ(lines[0].duration, QStringLiteral("30 min"));
}

TEST(DashboardFigures, RecentSumsUpTheWholeLog) {
    EXPECT_EQ(dashboard::recentText(0, 0, DurationStyle::Natural), QString());
    EXPECT_EQ(dashboard::recentText(1, 60, DurationStyle::Natural),
              QStringLiteral("1 session · 1 min"));
    EXPECT_EQ(dashboard::recentText(58, 166680, DurationStyle::Natural),
              QStringLiteral("58 sessions · 46 h 18 min"));
}

TEST(DashboardWords, NamesAreSpokenAsTheyStand) {
    const SkillTotalLine total{
        QStringLiteral("50%1 %2"), {}, 1, QStringLiteral("2 h"), QStringLiteral("100%")};
    EXPECT_EQ(total.spoken(), QStringLiteral("50%1 %2, 2 h, 100%"));
    RecentLine recent{QStringLiteral("Mar 9 · 10:00"),
                      {},
                      QStringLiteral("%3 done"),
                      QStringLiteral("2 h"),
                      true};
    EXPECT_EQ(recent.spoken(), QStringLiteral("Mar 9 · 10:00, %3 done, 2 h, manual"));
    recent.isManual = false;
    EXPECT_EQ(recent.spoken(), QStringLiteral("Mar 9 · 10:00, %3 done, 2 h"));
}

} // namespace
} // namespace vantle
