#include "tracking/Totals.h"

#include "tracking/Samples.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using samples::at;
using samples::sessionEnding;
using testing::ElementsAre;
using testing::IsEmpty;

class TotalsTest : public testing::Test {
protected:
    const Date now = samples::morning(); // a Sunday
    const Calendar calendar{QStringLiteral("Europe/Berlin"), 2, 4};
    const std::vector<Skill> seeds = samples::seeds();

    /// So many seconds that ended so long before now.
    Session worked(std::int64_t seconds, double before = 0,
                   const QString& skillId = QStringLiteral("building")) {
        Session session = sessionEnding(now - Seconds(before), seconds);
        session.skillId = skillId;
        return session;
    }
    [[nodiscard]] std::vector<QString> dotIds(const std::vector<Session>& sessions) const {
        std::vector<QString> ids;
        for (const Skill& dot : totals::hourDots(sessions, now, seeds))
            ids.push_back(dot.id);
        return ids;
    }
};

TEST_F(TotalsTest, AnEmptyLogHasNothingButTheSkills) {
    EXPECT_EQ(totals::hours({}, now, calendar).today, 0);
    EXPECT_EQ(totals::hours({}, now, calendar).thisWeek, 0);
    EXPECT_EQ(totals::hours({}, now, calendar).allTime, 0);
    EXPECT_THAT(totals::badges({}, now), IsEmpty());
    EXPECT_THAT(totals::hourDots({}, now, seeds), IsEmpty());
    EXPECT_EQ(totals::hourDotCount({}, now), 0);
    const auto perSkill = totals::perSkillTotals({}, now, seeds);
    ASSERT_EQ(perSkill.size(), seeds.size());
    for (std::size_t i = 0; i < seeds.size(); ++i) {
        EXPECT_EQ(perSkill[i].skill, seeds[i]);
        EXPECT_EQ(perSkill[i].hours, 0);
    }
}

TEST_F(TotalsTest, ASessionAcrossMidnightCountsEntirelyForTheDayOfItsEnd) {
    // Midnight in Berlin is 23:00 UTC of the day before.
    EXPECT_EQ(totals::hours({sessionEnding(at("2026-02-28T23:30:00Z"), 3600)}, now, calendar).today,
              1.0);
    EXPECT_EQ(totals::hours({sessionEnding(at("2026-02-28T23:00:00Z"), 3600)}, now, calendar).today,
              1.0);
    EXPECT_EQ(totals::hours({sessionEnding(at("2026-02-28T22:59:59Z"), 3600)}, now, calendar).today,
              0.0);
}

TEST_F(TotalsTest, TheWeekBeginsOnTheFirstWeekdayOfTheUser) {
    const std::vector<Session> friday = {sessionEnding(at("2026-02-27T12:00:00Z"), 3600)};
    EXPECT_EQ(totals::hours(friday, now, calendar).thisWeek, 1.0);
    const Calendar american{QStringLiteral("Europe/Berlin"), 1, 1};
    EXPECT_EQ(totals::hours(friday, now, american).thisWeek, 0.0);
    const std::vector<Session> sundayBefore = {sessionEnding(at("2026-02-22T12:00:00Z"), 3600)};
    EXPECT_EQ(totals::hours(sundayBefore, now, calendar).thisWeek, 0.0);
}

TEST_F(TotalsTest, ASessionThatStartsInTheFutureCountsNowhere) {
    Session future = worked(7200);
    future.startedAt = now + Seconds(301);
    future.endedAt = future.startedAt + Seconds(7200);
    const std::vector<Session> sessions = {future};
    EXPECT_EQ(totals::hours(sessions, now, calendar).today, 0);
    EXPECT_EQ(totals::hours(sessions, now, calendar).thisWeek, 0);
    EXPECT_EQ(totals::hours(sessions, now, calendar).allTime, 0);
    EXPECT_EQ(totals::perSkillTotals(sessions, now, seeds).front().hours, 0);
    EXPECT_THAT(dotIds(sessions), IsEmpty());
    EXPECT_EQ(totals::hourDotCount(sessions, now), 0);
    EXPECT_THAT(totals::badges(std::vector<Session>(30, future), now), IsEmpty());

    future.startedAt = now + Seconds(300);
    EXPECT_EQ(totals::hours({future}, now, calendar).allTime, 2);
    EXPECT_EQ(dotIds({future}).size(), 2u);
}

TEST_F(TotalsTest, TimeUnderOtherSkillsIsInNoEntry) {
    const std::vector<Session> sessions = {worked(3600), worked(1800, 0, QStringLiteral("gone")),
                                           worked(1800, 0, QStringLiteral("marketing")),
                                           worked(3600)};
    const auto perSkill = totals::perSkillTotals(sessions, now, seeds);
    double sum = 0;
    for (const auto& entry : perSkill)
        sum += entry.hours;
    EXPECT_EQ(perSkill[0].hours, 2);
    EXPECT_EQ(perSkill[2].hours, 0.5);
    EXPECT_EQ(sum, 2.5);
    EXPECT_EQ(totals::hours(sessions, now, calendar).allTime, 3);
}

TEST_F(TotalsTest, ADotTakesTheColourOfTheSessionThatFinishedTheHour) {
    EXPECT_THAT(dotIds({worked(3599)}), IsEmpty());
    EXPECT_THAT(dotIds({worked(3599), worked(1, 0, QStringLiteral("marketing"))}),
                ElementsAre(QStringLiteral("marketing")));
    EXPECT_THAT(dotIds({worked(7200)}),
                ElementsAre(QStringLiteral("building"), QStringLiteral("building")));
}

TEST_F(TotalsTest, DotsOfDeletedSkillsKeepTheirSeedOrGoGrey) {
    const auto dots = totals::hourDots(
        {worked(3600, 0, QStringLiteral("code")), worked(3600, 0, QStringLiteral("old_thing"))},
        now, seeds);
    ASSERT_EQ(dots.size(), 2u);
    EXPECT_EQ(dots[0].hexRGB, 0x64D2FFu);
    EXPECT_EQ(dots[1].hexRGB, 0x8E8E93u);
    EXPECT_EQ(dots[1].name, QStringLiteral("Old Thing"));
}

TEST_F(TotalsTest, RunsHoldTheSameDotsInLessRoom) {
    const auto runs =
        totals::hourDotRuns({worked(7200), worked(3600), worked(3600, 0, QStringLiteral("code")),
                             worked(5400), worked(1800)},
                            now, seeds);
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[0].skill.id, QStringLiteral("building"));
    EXPECT_EQ(runs[0].count, 3);
    EXPECT_EQ(runs[1].count, 1);
    EXPECT_EQ(runs[2].count, 2);
}

TEST_F(TotalsTest, OneLongSessionCanEarnSeveralBadgesAtOnce) {
    const Session nine = worked(9 * 3600, 100'000);
    const Session sixteen = worked(16 * 3600);
    EXPECT_THAT(totals::badges({nine, sixteen}, now),
                ElementsAre(totals::Badge{10, now}, totals::Badge{25, now}));
}

TEST_F(TotalsTest, ABadgeIsEarnedAtExactlyItsHours) {
    EXPECT_THAT(totals::badges({worked(35999)}, now), IsEmpty());
    EXPECT_EQ(totals::badges({worked(36000)}, now).size(), 1u);
}

TEST_F(TotalsTest, TheLadderEndsAtTenThousandHours) {
    const std::vector<Session> lifetime(200, worked(604800));
    const auto badges = totals::badges(lifetime, now);
    ASSERT_EQ(badges.size(), totals::milestoneLadder.size());
    EXPECT_EQ(badges.back().hours, 10000);
    EXPECT_EQ(totals::hourDotCount(lifetime, now), 200 * 168);
}

} // namespace
} // namespace vantle
