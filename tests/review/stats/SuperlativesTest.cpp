#include "review/stats/Superlatives.h"

#include "review/stats/ReviewSamples.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

std::vector<SuperlativeLine> pick(const SuperlativeFacts& facts) {
    return pickSuperlatives(facts, samples::seeds(), DurationStyle::Natural);
}

SuperlativeFacts factsOf(WrappedPeriod period) {
    SuperlativeFacts facts;
    facts.period = period;
    return facts;
}

/// The one line of facts that make one.
SuperlativeLine only(const SuperlativeFacts& facts) {
    const auto lines = pick(facts);
    EXPECT_EQ(lines.size(), 1u);
    return lines.empty() ? SuperlativeLine{} : lines.front();
}

std::vector<QString> texts(const SuperlativeFacts& facts) {
    std::vector<QString> found;
    for (const SuperlativeLine& line : pick(facts))
        found.push_back(line.text);
    return found;
}

Session lasting(std::int64_t seconds) {
    Session session = samples::session();
    session.activeSeconds = seconds;
    return session;
}

TEST(Superlatives, NothingIsNotTold) { EXPECT_TRUE(pick({}).empty()); }

TEST(Superlatives, OnlyTheThreeBestWeeksAreTold) {
    const auto week = [](int rank) {
        SuperlativeFacts facts = factsOf(WrappedPeriod::Week);
        facts.weekRank = rank;
        return facts;
    };
    EXPECT_EQ(only(week(1)), (SuperlativeLine{QStringLiteral("trophy.fill"), 0xFFD60A,
                                              QStringLiteral("Your best week yet."), 98}));
    EXPECT_EQ(only(week(2)).text, QStringLiteral("Your 2nd best week."));
    EXPECT_EQ(only(week(2)).score, 88);
    EXPECT_EQ(only(week(3)).text, QStringLiteral("Your 3rd best week."));
    EXPECT_EQ(only(week(3)).score, 78);
    EXPECT_TRUE(pick(week(4)).empty());
    EXPECT_TRUE(pick(week(0)).empty());
}

TEST(Superlatives, TheGoalIsCountedInWords) {
    SuperlativeFacts facts;
    facts.goalHitDays = 1;
    EXPECT_EQ(only(facts).text, QStringLiteral("You hit your daily goal once."));
    EXPECT_EQ(only(facts).score, 101);
    facts.goalHitDays = 4;
    EXPECT_EQ(only(facts).text, QStringLiteral("You hit your daily goal 4 times."));
    EXPECT_EQ(only(facts).score, 104);
}

TEST(Superlatives, ABigDayIsHalfAgainTheAverageAndOneOfThree) {
    SuperlativeFacts facts;
    facts.totalHours = 6;
    facts.activeDays = 3;
    facts.biggestDayHours = 3;
    EXPECT_EQ(only(facts).text, QStringLiteral("Your biggest day was 1.5x your average."));
    EXPECT_EQ(only(facts).score, 62);
    facts.biggestDayHours = 2.9;
    EXPECT_TRUE(pick(facts).empty());
    facts.biggestDayHours = 0; // what is passed when there is none
    EXPECT_TRUE(pick(facts).empty());
    facts.biggestDayHours = 6;
    facts.activeDays = 2;
    EXPECT_TRUE(pick(facts).empty());
}

TEST(Superlatives, TheScoreOfABigDayIsCappedButItsTextIsNot) {
    SuperlativeFacts facts;
    facts.totalHours = 9;
    facts.activeDays = 8;
    facts.biggestDayHours = 8.5;
    EXPECT_EQ(only(facts).text, QStringLiteral("Your biggest day was 7.6x your average."));
    EXPECT_EQ(only(facts).score, 98);
}

TEST(Superlatives, EveryDayOfAPeriodNeedsThreeOfThem) {
    SuperlativeFacts facts = factsOf(WrappedPeriod::LastWeek);
    facts.activeDays = 7;
    facts.daysElapsed = 7;
    EXPECT_EQ(only(facts).text, QStringLiteral("You showed up every single day last week."));
    EXPECT_EQ(only(facts).score, 90);
    facts.period = WrappedPeriod::Week;
    facts.activeDays = facts.daysElapsed.emplace(2);
    EXPECT_TRUE(pick(facts).empty());
    facts.period = WrappedPeriod::Today;
    facts.activeDays = facts.daysElapsed.emplace(1);
    EXPECT_TRUE(pick(facts).empty());
}

TEST(Superlatives, MostDaysOfAPeriodAreSixInTen) {
    SuperlativeFacts facts = factsOf(WrappedPeriod::Week);
    facts.activeDays = 3;
    facts.daysElapsed = 5;
    EXPECT_EQ(only(facts).text, QStringLiteral("You showed up 3 of 5 days."));
    EXPECT_EQ(only(facts).score, 64);
    facts.daysElapsed = 6;
    EXPECT_TRUE(pick(facts).empty());
}

TEST(Superlatives, AllTimeCountsItsDaysFromTenOn) {
    SuperlativeFacts facts = factsOf(WrappedPeriod::AllTime);
    facts.activeDays = 9;
    EXPECT_TRUE(pick(facts).empty());
    facts.activeDays = 10;
    EXPECT_EQ(only(facts).text, QStringLiteral("You showed up on 10 different days."));
    EXPECT_EQ(only(facts).score, 45);
    facts.activeDays = 1000;
    EXPECT_EQ(only(facts).score, 90);
}

TEST(Superlatives, ALongSessionLastsAnHourAndAHalf) {
    SuperlativeFacts facts;
    facts.longest = lasting(5399);
    EXPECT_TRUE(pick(facts).empty());
    facts.longest = lasting(5400);
    EXPECT_EQ(only(facts).text, QStringLiteral("Longest session: 1 h 30 min of Build."));
    EXPECT_EQ(only(facts).score, 45);
    facts.longest = lasting(21600);
    EXPECT_EQ(only(facts).score, 90);
    facts.longest = lasting(50000);
    EXPECT_EQ(only(facts).score, 90);
}

TEST(Superlatives, ASkillMayHaveAnyName) {
    SuperlativeFacts facts;
    facts.longest = lasting(7200);
    const std::vector<Skill> skills = {{facts.longest->skillId, QStringLiteral("%1 %2"), 0, false}};
    EXPECT_EQ(pickSuperlatives(facts, skills, DurationStyle::Natural).at(0).text,
              QStringLiteral("Longest session: 2 h of %1 %2."));
}

TEST(Superlatives, TheHighestMarkThatWasReachedIsTold) {
    SuperlativeFacts facts = factsOf(WrappedPeriod::Month);
    facts.totalHours = 9.99;
    EXPECT_TRUE(pick(facts).empty());
    facts.totalHours = 10;
    EXPECT_EQ(only(facts).text, QStringLiteral("You crossed the 10 hour mark this month."));
    EXPECT_EQ(only(facts).score, 46);
    facts.totalHours = 499;
    EXPECT_EQ(only(facts).score, 70);
    facts.period = WrappedPeriod::AllTime;
    facts.totalHours = 7000;
    EXPECT_EQ(only(facts).text, QStringLiteral("Your total has passed 500 hours."));
    EXPECT_EQ(only(facts).score, 95);
    facts.totalHours = 25;
    EXPECT_EQ(only(facts).score, 47.5);
}

TEST(Superlatives, TheStrongestThreeStandInTheirOrder) {
    SuperlativeFacts facts = factsOf(WrappedPeriod::Week);
    facts.totalHours = 12;
    facts.goalHitDays = 2;
    facts.activeDays = 4;
    facts.daysElapsed = 5;
    facts.biggestDayHours = 6;
    facts.longest = lasting(6000);
    facts.weekRank = 3;
    EXPECT_THAT(texts(facts),
                testing::ElementsAre(QStringLiteral("You hit your daily goal 2 times."),
                                     QStringLiteral("Your 3rd best week."),
                                     QStringLiteral("You showed up 4 of 5 days.")));
}

TEST(Superlatives, OfEqualScoresTheMoreImportantKindComesFirst) {
    SuperlativeFacts facts = factsOf(WrappedPeriod::LastWeek);
    facts.activeDays = 7;
    facts.daysElapsed = 7;
    facts.longest = lasting(21600);
    EXPECT_THAT(texts(facts),
                testing::ElementsAre(QStringLiteral("You showed up every single day last week."),
                                     QStringLiteral("Longest session: 6 h of Build.")));
}

} // namespace
} // namespace vantle
