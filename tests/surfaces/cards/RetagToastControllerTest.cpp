#include "surfaces/cards/RetagToastController.h"

#include "support/QtPrinters.h"
#include "support/Text.h"
#include "surfaces/cards/CardWorld.h"
#include "surfaces/cards/RetagToastModel.h"
#include "surfaces/cards/StopSummaryController.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

class RetagToastTest : public testing::Test, protected CardWorld {
protected:
    void show(std::int64_t seconds = 720) { controller.show(text("Build"), 0x7A78FF, seconds); }
    [[nodiscard]] fakes::FakeCardPanel* toast() const { return stage.up(CardView::RetagToast); }
    [[nodiscard]] RetagToastModel* model() const {
        return stage.modelOf<RetagToastModel>(CardView::RetagToast);
    }

    RetagToastController controller{environment};
};

TEST_F(RetagToastTest, ItSaysHowMuchWasSavedAndWhere) {
    show();
    ASSERT_NE(model(), nullptr);
    EXPECT_EQ(model()->text(), text("12 min saved"));
    EXPECT_EQ(model()->skillName(), text("Build"));
    EXPECT_EQ(model()->spoken(), text("12 min saved, Build"));
    EXPECT_EQ(model()->skillColor(), QColor::fromRgb(0x7A78FF));
    EXPECT_EQ(toast()->frame(), QRect(1440 - 12 - 206, 38, 206, 40));
}

TEST_F(RetagToastTest, ItWritesDurationsAsTheUserLikesThem) {
    setStyle(DurationStyle::Clock);
    show(65);
    EXPECT_EQ(model()->text(), text("1:05 saved"));
}

TEST_F(RetagToastTest, ItGoesAfterTwoSecondsAndLeavesNoTimer) {
    show();
    time.advance(1.9);
    EXPECT_NE(toast(), nullptr);
    time.advance(0.2);
    EXPECT_EQ(toast(), nullptr);
    EXPECT_EQ(stage.dismissed, 1) << "it fades";
    EXPECT_EQ(time.timerCount(), 0u);
}

TEST_F(RetagToastTest, ANewOneReplacesTheOldAtOnceAndStaysItsFullTime) {
    show(60);
    time.advance(1.5);
    show(120);
    EXPECT_EQ(stage.panels.size(), 1u);
    EXPECT_EQ(stage.dismissed, 0) << "the old one does not fade beside the new one";
    EXPECT_EQ(model()->text(), text("2 min saved"));
    time.advance(1.5);
    EXPECT_NE(toast(), nullptr);
    time.advance(1);
    EXPECT_EQ(toast(), nullptr);
}

TEST_F(RetagToastTest, ItDoesNotCompeteForTheCorner) {
    const int prompt = 0;
    (void)slot.request(&prompt, TopRightCardSlot::Kind::Prompt, [] { FAIL() << "evicted"; }, {});
    show();
    EXPECT_NE(toast(), nullptr);
    EXPECT_EQ(slot.holder()->owner, &prompt);
}

TEST_F(RetagToastTest, AStopSummaryThatComesMovesItBelowWithinAQuarterOfASecond) {
    StopSummaryController summary(environment);
    show();
    time.advance(0.6);
    summary.show({.session = session(60)}, {});
    time.advance(0.25);
    EXPECT_EQ(toast()->frame().y(), 38 + 263 + 12);
    EXPECT_EQ(toast()->moves, 1);
    time.advance(0.5);
    EXPECT_EQ(toast()->moves, 1) << "it stays where it is";
}

TEST_F(RetagToastTest, ItMovesUpAgainWhenTheCardAboveGoes) {
    stage.others = {QRect(1068, 34, 360, 534)};
    show();
    EXPECT_EQ(toast()->frame().y(), 34 + 534 + 12);
    stage.others.clear();
    time.advance(0.25);
    EXPECT_EQ(toast()->frame().y(), 38);
}

TEST_F(RetagToastTest, WithoutAScreenThereIsNone) {
    stage.screen.reset();
    show();
    EXPECT_EQ(stage.raised, 0);
    EXPECT_EQ(time.timerCount(), 0u);
}

TEST_F(RetagToastTest, AScreenThatGoesMeanwhileLeavesItWhereItIs) {
    show();
    stage.screen.reset();
    time.advance(1);
    EXPECT_EQ(toast()->moves, 0);
    time.advance(2);
    EXPECT_EQ(toast(), nullptr);
}

TEST(SavedTime, InWordsItCountsSecondsThenMinutesThenHours) {
    EXPECT_EQ(savedTime(1, DurationStyle::Natural), text("1 sec"));
    EXPECT_EQ(savedTime(59, DurationStyle::Natural), text("59 sec"));
    EXPECT_EQ(savedTime(60, DurationStyle::Natural), text("1 min"));
    EXPECT_EQ(savedTime(3599, DurationStyle::Natural), text("59 min"));
    EXPECT_EQ(savedTime(7200, DurationStyle::Natural), text("2 h"));
    EXPECT_EQ(savedTime(7260, DurationStyle::Natural), text("2 h 1 min"));
}

TEST(SavedTime, NothingAtAllReadsAsOneSecond) {
    EXPECT_EQ(savedTime(0, DurationStyle::Natural), text("1 sec"));
    EXPECT_EQ(savedTime(-5, DurationStyle::Natural), text("1 sec"));
    EXPECT_EQ(savedTime(0, DurationStyle::Clock), text("0:01"));
}

TEST(SavedTime, InHoursAndMinutesLessThanAMinuteIsNotRounded) {
    for (const auto style : {DurationStyle::HoursMinutes, DurationStyle::Minutes}) {
        EXPECT_EQ(savedTime(0, style), text("<1 min"));
        EXPECT_EQ(savedTime(59, style), text("<1 min"));
        EXPECT_EQ(savedTime(60, style), text("1 min"));
        EXPECT_EQ(savedTime(90, style), text("2 min"));
    }
    EXPECT_EQ(savedTime(5400, DurationStyle::HoursMinutes), text("1 h 30 min"));
    EXPECT_EQ(savedTime(5400, DurationStyle::Minutes), text("90 min"));
}

TEST(SavedTime, AsAClockItHasSecondsAndFromAnHourOnHours) {
    EXPECT_EQ(savedTime(65, DurationStyle::Clock), text("1:05"));
    EXPECT_EQ(savedTime(3661, DurationStyle::Clock), text("1:01:01"));
}

} // namespace
} // namespace vantle::tests
