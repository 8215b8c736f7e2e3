#include "review/SharePoster.h"

#include "review/stats/ReviewSamples.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using samples::worked;

const WrappedSettings& posterSettings() {
    static const WrappedSettings settings = samples::settingsAt("2026-03-11T14:00:00Z");
    return settings;
}

SharePoster posterOf(const std::vector<Session>& log, WrappedPeriod period = WrappedPeriod::Week) {
    return reviewcards::poster(WrappedStats::compute(log, period, posterSettings()),
                               posterSettings());
}

TEST(SharePoster, ShowsTheHoursWhileThereIsNoType) {
    const auto poster = posterOf({worked("2026-03-10T09:00:00Z", 150)});
    EXPECT_TRUE(poster.personaName.isEmpty());
    EXPECT_EQ(poster.hours, (ReviewFigure{QStringLiteral("2.5"), QStringLiteral("h")}));
    EXPECT_EQ(poster.wordmark, QStringLiteral("Vantle"));
    EXPECT_EQ(poster.title, QStringLiteral("YOUR WEEK, IN FULL"));
    EXPECT_EQ(poster.closing, QStringLiteral("2.5 h across one session, led by Build."));
    EXPECT_EQ(poster.footer, QStringLiteral("Vantle · the work is adding up"));
}

TEST(SharePoster, CountsOneAndManyInTheirOwnWords) {
    const auto one = posterOf({worked("2026-03-10T09:00:00Z", 60)});
    ASSERT_EQ(one.figures.size(), 3U);
    EXPECT_EQ(one.figures[0].title, QStringLiteral("TOTAL"));
    EXPECT_EQ(one.figures[1].title, QStringLiteral("SESSION"));
    EXPECT_EQ(one.figures[2].title, QStringLiteral("ACTIVE DAY"));
    const auto two =
        posterOf({worked("2026-03-09T09:00:00Z", 60), worked("2026-03-10T09:00:00Z", 60)});
    EXPECT_EQ(two.figures[1].figure.value, QStringLiteral("2"));
    EXPECT_EQ(two.figures[1].title, QStringLiteral("SESSIONS"));
    EXPECT_EQ(two.figures[2].title, QStringLiteral("ACTIVE DAYS"));
}

TEST(SharePoster, BreaksDownToThreeSkills) {
    std::vector<Session> log;
    int hours = 9;
    for (const Skill& skill : posterSettings().skills)
        log.push_back(worked("2026-03-10T01:00:00Z", 60 * --hours, skill.id));
    log.push_back(worked("2026-03-11T01:00:00Z", 60));
    const auto poster = posterOf(log);
    ASSERT_EQ(poster.breakdown.size(), 3U);
    EXPECT_EQ(poster.breakdown[0].fraction, 1);
    EXPECT_EQ(poster.breakdownKicker, QStringLiteral("THE BREAKDOWN"));
    EXPECT_FALSE(poster.personaName.isEmpty());
}

TEST(SharePoster, DotsAreTheFinishedHoursTheNewestFirst) {
    const auto poster = posterOf({worked("2026-03-09T09:00:00Z", 60),
                                  worked("2026-03-10T09:00:00Z", 60, QStringLiteral("marketing"))});
    EXPECT_EQ(poster.dotColors,
              (QList<QColor>{QColor::fromRgb(0xFF375F), QColor::fromRgb(0x7A78FF)}));
}

TEST(SharePoster, ShortWorkLendsItsColourAndNoWorkTheAccent) {
    const auto poster = posterOf({worked("2026-03-10T09:00:00Z", 20, QStringLiteral("marketing"))});
    EXPECT_EQ(poster.dotColors, QList<QColor>{QColor::fromRgb(0xFF375F)});
    const auto empty = posterOf({});
    EXPECT_EQ(empty.dotColors, QList<QColor>{QColor::fromRgb(0x7A78FF)});
    EXPECT_TRUE(empty.breakdownKicker.isEmpty());
}

TEST(SharePoster, ShowsTheCalendarOfItsPeriod) {
    const std::vector<Session> log = {worked("2024-03-10T09:00:00Z", 60)};
    EXPECT_TRUE(posterOf(log, WrappedPeriod::Month).rhythm.isMonth());
    const auto year = posterOf(log, WrappedPeriod::AllTime).rhythm;
    EXPECT_TRUE(year.isYear());
    EXPECT_EQ(year.year, 2024) << "the last year with work";
    EXPECT_EQ(posterOf(log, WrappedPeriod::Today).rhythm.weeks.size(), 1U);
}

} // namespace
} // namespace vantle
