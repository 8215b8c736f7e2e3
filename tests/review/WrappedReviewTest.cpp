#include "review/WrappedReview.h"

#include "fakes/MemoryPreferences.h"
#include "review/stats/ReviewSamples.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using samples::worked;
using enum WrappedCard;

constexpr auto kNow = "2026-03-11T14:00:00Z"; // a Wednesday, in a week that began on the 9th

class WrappedReviewTest : public testing::Test {
protected:
    void open(std::vector<Session> log, std::optional<WrappedPeriod> initial = {}) {
        review.open(std::move(log), settings, initial);
    }
    void pick(WrappedPeriod period) { review.pick(period, settings); }
    [[nodiscard]] bool has(WrappedCard card) const {
        const auto cards = review.cards();
        return std::ranges::find(cards, card) != cards.end();
    }
    void turnToTheEnd() {
        while (review.turn(+1))
            ;
    }

    const WrappedSettings settings = samples::settingsAt(kNow);
    const Session lastMonday = worked("2026-03-02T09:00:00Z", 60);
    const Session monday = worked("2026-03-09T09:00:00Z", 60);
    const Session today = worked("2026-03-11T09:00:00Z", 60);
    WrappedReview review;
};

TEST_F(WrappedReviewTest, OpensOnLastWeekWhenThisOneIsEmpty) {
    open({lastMonday});
    EXPECT_EQ(review.period(), WrappedPeriod::LastWeek);
    EXPECT_EQ(review.page(), 0);
    EXPECT_EQ(review.stats().sessionCount, 1);
}

TEST_F(WrappedReviewTest, OpensOnThisWeekWhenThatHasWork) {
    open({lastMonday, monday});
    EXPECT_EQ(review.period(), WrappedPeriod::Week);
}

TEST_F(WrappedReviewTest, OpensOnThisWeekWhenBothAreEmpty) {
    open({worked("2026-01-02T09:00:00Z", 60)});
    EXPECT_EQ(review.period(), WrappedPeriod::Week);
    EXPECT_TRUE(review.cards().empty());
    EXPECT_FALSE(review.isLogEmpty());
}

TEST_F(WrappedReviewTest, GoingBackToThisWeekDoesNotLeadToLastWeekAgain) {
    open({lastMonday});
    pick(WrappedPeriod::Week);
    EXPECT_EQ(review.period(), WrappedPeriod::Week);
    open({lastMonday});
    EXPECT_EQ(review.period(), WrappedPeriod::Week);
    review.reload(std::vector{lastMonday}, settings);
    EXPECT_EQ(review.period(), WrappedPeriod::Week);
}

TEST_F(WrappedReviewTest, AskedForLastWeekShowsItEvenWhenItIsEmpty) {
    open({monday}, WrappedPeriod::LastWeek);
    EXPECT_EQ(review.period(), WrappedPeriod::LastWeek);
    EXPECT_EQ(review.stats().sessionCount, 0);
}

TEST_F(WrappedReviewTest, AskedForThisWeekStaysThereWhenItIsEmpty) {
    open({lastMonday}, WrappedPeriod::Week);
    EXPECT_EQ(review.period(), WrappedPeriod::Week);
}

TEST_F(WrappedReviewTest, NarrativeOfAnotherPeriodIsDropped) {
    open({monday});
    pick(WrappedPeriod::Month);
    review.narrativeArrived(WrappedPeriod::Week, QStringLiteral("You did it."));
    EXPECT_FALSE(review.narrative());
    EXPECT_FALSE(has(Narrative));
}

TEST_F(WrappedReviewTest, NarrativeCardGoesWithItsPeriodAndComesBackWithIt) {
    open({monday});
    review.narrativeArrived(WrappedPeriod::Week, QStringLiteral("You did it."));
    EXPECT_TRUE(has(Narrative));
    pick(WrappedPeriod::Month);
    EXPECT_FALSE(has(Narrative));
    EXPECT_EQ(review.narrativePeriod(), WrappedPeriod::Week);
    pick(WrappedPeriod::Week);
    EXPECT_TRUE(has(Narrative));
    review.narrativeArrived(WrappedPeriod::Week, std::nullopt);
    EXPECT_FALSE(has(Narrative));
    EXPECT_FALSE(review.narrativePeriod());
}

TEST_F(WrappedReviewTest, LastPageStaysTheLastWhenThereAreFewer) {
    open({monday, today});
    turnToTheEnd();
    const int end = review.page();
    pick(WrappedPeriod::Today);
    EXPECT_LT(review.page(), end);
    EXPECT_EQ(review.cards()[static_cast<std::size_t>(review.page())], Summary);
}

TEST_F(WrappedReviewTest, PageStaysOnAnotherPeriod) {
    open({monday});
    review.turn(+1);
    pick(WrappedPeriod::Month);
    EXPECT_EQ(review.page(), 1);
    EXPECT_EQ(review.pageKey(), QStringLiteral("month-1"));
    EXPECT_EQ(review.pageDirection(), 1.0);
}

TEST_F(WrappedReviewTest, EmptiedLogLeadsToTheFirstPage) {
    open({monday});
    turnToTheEnd();
    review.reload({}, settings);
    EXPECT_EQ(review.page(), 0);
    EXPECT_TRUE(review.cards().empty());
    EXPECT_FALSE(review.turn(+1));
    EXPECT_FALSE(review.turn(-1));
}

TEST_F(WrappedReviewTest, TurnsNoFurtherThanItsEnds) {
    open({monday});
    EXPECT_FALSE(review.turn(-1));
    EXPECT_EQ(review.pageDirection(), 1.0);
    turnToTheEnd();
    EXPECT_EQ(review.page() + 1, static_cast<int>(review.cards().size()));
    EXPECT_TRUE(review.turn(-1));
    EXPECT_EQ(review.pageDirection(), -1.0);
}

TEST_F(WrappedReviewTest, TodayShowsNeitherATypeNorARhythm) {
    open({today});
    EXPECT_TRUE(has(Persona));
    EXPECT_TRUE(has(Rhythm));
    pick(WrappedPeriod::Today);
    EXPECT_FALSE(has(Persona));
    EXPECT_FALSE(has(Rhythm));
    EXPECT_TRUE(has(Summary));
}

TEST_F(WrappedReviewTest, PickingThePeriodThatIsShownChangesNothing) {
    open({monday});
    review.setCopied(true);
    EXPECT_FALSE(review.pick(WrappedPeriod::Week, settings));
    EXPECT_TRUE(review.isCopied());
    EXPECT_TRUE(review.pick(WrappedPeriod::Month, settings));
    EXPECT_FALSE(review.isCopied());
}

TEST_F(WrappedReviewTest, WordsAboutSharingGoWithThePeriod) {
    open({monday});
    review.setShareFeedback(QStringLiteral("no"));
    pick(WrappedPeriod::Month);
    EXPECT_FALSE(review.shareFeedback());
}

TEST_F(WrappedReviewTest, WordsAboutSharingStayUntilThePosterIsCopied) {
    open({monday});
    review.setShareFeedback(QStringLiteral("no"));
    review.setCopied(false);
    EXPECT_EQ(review.shareFeedback(), QStringLiteral("no"));
    review.setCopied(true);
    EXPECT_FALSE(review.shareFeedback());
}

TEST_F(WrappedReviewTest, NarrativeOfAnEmptiedReviewHasNoPage) {
    open({monday});
    review.reload({}, settings);
    review.narrativeArrived(WrappedPeriod::Week, QStringLiteral("You did."));
    EXPECT_TRUE(review.cards().empty());
    EXPECT_EQ(review.page(), 0);
}

TEST(WrappedCards, OneHighPointWithoutADayThatReachedTheGoalIsNoPage) {
    wrappedcards::Facts facts;
    facts.sessionCount = 3;
    facts.superlativeCount = 1;
    const auto has = [&] {
        const auto cards = wrappedcards::cards(facts);
        return std::ranges::find(cards, Superlatives) != cards.end();
    };
    EXPECT_FALSE(has());
    facts.goalHitDays = 1;
    EXPECT_TRUE(has());
    facts.goalHitDays = 0;
    facts.superlativeCount = 2;
    EXPECT_TRUE(has());
}

TEST(WrappedCards, FullReviewHasTenPagesInOrder) {
    const wrappedcards::Facts facts{WrappedPeriod::Week, 9, true, 3, 2, 1, true, true};
    EXPECT_EQ(wrappedcards::cards(facts),
              (std::vector{Hero, Skills, Persona, Rhythm, When, Superlatives, Milestones, Narrative,
                           Notes, Summary}));
}

TEST(WrappedCards, LastWeekStandsInThePickerWhileItIsShown) {
    using enum WrappedPeriod;
    EXPECT_EQ(wrappedcards::segments(Week), (std::vector{Today, Week, Month, AllTime}));
    EXPECT_EQ(wrappedcards::segments(LastWeek),
              (std::vector{LastWeek, Today, Week, Month, AllTime}));
}

TEST(WrappedCards, EmptyCardKnowsWhyItIsEmpty) {
    EXPECT_EQ(wrappedcards::emptyCard(WrappedPeriod::LastWeek, true).title,
              QStringLiteral("Ready when you are"));
    EXPECT_EQ(wrappedcards::emptyCard(WrappedPeriod::LastWeek, false).text,
              QStringLiteral("Start a session and this week's page fills in."));
    EXPECT_EQ(wrappedcards::emptyCard(WrappedPeriod::Month, false).title,
              QStringLiteral("Nothing this month yet"));
}

TEST(WrappedReviewNarrative, AsksAboutNotesOnlyWhereThereAreSome) {
    const WrappedSettings settings = samples::settingsAt(kNow);
    const auto questionOf = [&](const std::vector<Session>& log) {
        return wrappedreview::narrativeQuestion(
            WrappedStats::compute(log, WrappedPeriod::Week, settings), DurationStyle::Natural);
    };
    Session session = worked("2026-03-10T09:00:00Z", 60);
    EXPECT_FALSE(questionOf({session}));
    session.note = QStringLiteral("drew the map");
    const auto question = questionOf({session});
    ASSERT_TRUE(question);
    EXPECT_EQ(question->hoursSummary, QStringLiteral("1 h"));
    EXPECT_EQ(question->topSkill, settings.skills.front().name);
    session.activeSeconds = 0;
    ASSERT_TRUE(questionOf({session}));
    EXPECT_EQ(questionOf({session})->topSkill, std::nullopt) << "a note without time";
}

TEST_F(WrappedReviewTest, ANarrativeThatIsClearedTakesItsCardAwayAndLeavesTheOthers) {
    Session session = today;
    session.note = QStringLiteral("drew the map");
    open({monday, session});
    review.narrativeArrived(WrappedPeriod::Week, QStringLiteral("You drew the map."));
    ASSERT_TRUE(has(Narrative));
    const auto shown = [this] { return review.cards().at(std::size_t(review.page())); };
    turnToTheEnd();
    const WrappedCard last = shown();
    review.clearNarrative();
    EXPECT_FALSE(has(Narrative));
    EXPECT_EQ(shown(), last);
    review.narrativeArrived(WrappedPeriod::Week, QStringLiteral("You drew the map."));
    while (shown() != Narrative)
        ASSERT_TRUE(review.turn(-1));
    review.clearNarrative();
    EXPECT_NE(shown(), Narrative) << "another card is in its place";
}

TEST(WrappedReviewSeen, OpeningMarksTheWeekBefore) {
    fakes::MemoryPreferences preferences;
    const Calendar calendar = samples::calendarIn(QStringLiteral("UTC"));
    wrappedreview::markLastWeekSeen(samples::at(kNow), calendar, preferences);
    EXPECT_EQ(preferences.boolean(QStringLiteral("wrapped.seen.2026-10")), true);
    EXPECT_EQ(preferences.keys().size(), 1);
}

TEST(WrappedReviewSeen, CalendarWithoutWeeksMarksNothing) {
    fakes::MemoryPreferences preferences;
    wrappedreview::markLastWeekSeen(samples::at(kNow),
                                    samples::calendarIn(QStringLiteral("No/Where")), preferences);
    EXPECT_TRUE(preferences.keys().isEmpty());
}

} // namespace
} // namespace vantle
