#include "surfaces/cards/RecoveryNoticeController.h"

#include "support/Text.h"
#include "surfaces/cards/CardWorld.h"
#include "surfaces/cards/RecoveryNoticeModel.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

class RecoveryNoticeTest : public testing::Test, protected CardWorld {
protected:
    void offer(std::int64_t seconds, const char* name = "") {
        controller.show(
            session(seconds, text("product_design")),
            [this, name] { answers << text(name) + text("discarded"); },
            [this, name] { answers << text(name) + text("kept"); });
    }
    [[nodiscard]] RecoveryNoticeModel* model() const {
        return stage.modelOf<RecoveryNoticeModel>(CardView::RecoveryNotice);
    }
    void takeCornerForSummary() {
        slot.takeForSummary(&summary, [] {});
    }

    RecoveryNoticeController controller{environment};
    QStringList answers;
    int summary = 0;
};

TEST_F(RecoveryNoticeTest, ItAsksAboutTheSessionAndWaits) {
    offer(4020);
    ASSERT_NE(model(), nullptr);
    EXPECT_EQ(model()->title(), text("Recover your last session?"));
    EXPECT_EQ(model()->body(), text("Vantle didn't shut down cleanly. Keep 1 h 7 min of Design? "
                                    "Nothing is saved unless you choose Keep."));
    EXPECT_EQ(model()->styledBody(Qt::red), text("Vantle didn't shut down cleanly. Keep "
                                                 "<font color=\"#ffff0000\">1 h 7 min</font> of "
                                                 "<font color=\"#ffff0000\">Design</font>? "
                                                 "Nothing is saved unless you choose Keep."));
    EXPECT_EQ(stage.up(CardView::RecoveryNotice)->frame().topLeft(), QPoint(1048, 38));
    time.advance(86400);
    EXPECT_NE(model(), nullptr);
    EXPECT_TRUE(answers.isEmpty());
}

TEST_F(RecoveryNoticeTest, TwentySecondsReadAsAMinute) {
    offer(20);
    EXPECT_TRUE(model()->body().contains(text("Keep 1 min of ")));
}

TEST_F(RecoveryNoticeTest, AChoiceTakesTheCardDownFirstAndCountsOnce) {
    offer(600);
    const auto shown = stage.up(CardView::RecoveryNotice)->model;
    auto* const card = model();
    card->keep();
    EXPECT_EQ(model(), nullptr);
    card->discard(); // a click while the card fades
    EXPECT_EQ(answers, QStringList(text("kept")));
    EXPECT_FALSE(slot.holder());

    offer(600);
    model()->discard();
    EXPECT_EQ(answers.last(), text("discarded"));
}

TEST_F(RecoveryNoticeTest, UnderASummaryItWaitsAndThenOffersTheSameSession) {
    takeCornerForSummary();
    offer(4020);
    EXPECT_EQ(model(), nullptr);
    slot.release(&summary);
    ASSERT_NE(model(), nullptr);
    EXPECT_TRUE(model()->body().contains(text("Keep 1 h 7 min of ")));
    model()->keep();
    EXPECT_EQ(answers, QStringList(text("kept")));
}

TEST_F(RecoveryNoticeTest, PushedOutItComesBackAsOftenAsNeeded) {
    offer(600);
    for (int round = 0; round < 3; ++round) {
        takeCornerForSummary();
        EXPECT_EQ(model(), nullptr);
        slot.release(&summary);
        EXPECT_NE(model(), nullptr);
    }
}

TEST_F(RecoveryNoticeTest, AnsweredByTheDesktopWhileItWaitsItDoesNotComeBack) {
    offer(600);
    takeCornerForSummary();
    controller.keep();
    EXPECT_EQ(answers, QStringList(text("kept")));
    slot.release(&summary);
    EXPECT_EQ(model(), nullptr);
    controller.keep();
    controller.discard();
    EXPECT_EQ(answers.size(), 1) << "the offer is answered";
}

TEST_F(RecoveryNoticeTest, OfferIsAnsweredInThePanelWhileTheCardIsUpAndWhileItWaits) {
    for (const bool waits : {false, true}) {
        if (waits) takeCornerForSummary();
        offer(4020);
        EXPECT_TRUE(openQuestion().text.contains(text("Keep 1 h 7 min of Design?")));
        answer(waits ? text("Discard") : text("Keep"));
        EXPECT_EQ(model(), nullptr);
        EXPECT_TRUE(questions.all().empty());
    }
    EXPECT_EQ(answers, QStringList({text("kept"), text("discarded")}));
}

TEST_F(RecoveryNoticeTest, OfferThatIsErasedOrAnsweredOnTheCardLeavesThePanel) {
    offer(600);
    model()->keep();
    EXPECT_TRUE(questions.all().empty());
    offer(600);
    controller.hideForEviction();
    EXPECT_TRUE(questions.all().empty());
}

TEST_F(RecoveryNoticeTest, AfterAllDataWasErasedANoticeThatWaitsNeverShows) {
    takeCornerForSummary();
    offer(600);
    controller.hideForEviction();
    slot.release(static_cast<const collaborators::Recovery*>(&controller));
    slot.release(&summary);
    EXPECT_EQ(model(), nullptr);
    controller.keep();
    EXPECT_TRUE(answers.isEmpty());
}

TEST_F(RecoveryNoticeTest, AfterAllDataWasErasedANoticeThatIsUpIsGone) {
    offer(600);
    controller.hideForEviction();
    slot.release(static_cast<const collaborators::Recovery*>(&controller));
    EXPECT_EQ(model(), nullptr);
    EXPECT_FALSE(slot.holder());
}

TEST_F(RecoveryNoticeTest, ANewOfferReplacesTheOneBefore) {
    offer(600, "first ");
    offer(1200, "second ");
    EXPECT_EQ(stage.panels.size(), 1u);
    model()->keep();
    EXPECT_EQ(answers, QStringList(text("second kept")));
}

TEST_F(RecoveryNoticeTest, ItPushesAPromptOut) {
    int evictions = 0;
    const int prompt = 0;
    (void)slot.request(&prompt, TopRightCardSlot::Kind::Prompt, [&] { ++evictions; }, {});
    offer(600);
    EXPECT_EQ(evictions, 1);
    EXPECT_NE(model(), nullptr);
}

TEST_F(RecoveryNoticeTest, WithoutAScreenTheOfferStandsAndTheCornerIsFree) {
    stage.screen.reset();
    offer(600);
    EXPECT_FALSE(slot.holder());
    controller.keep();
    EXPECT_EQ(answers, QStringList(text("kept")));
}

TEST_F(RecoveryNoticeTest, WithoutAScreenItWaitsForOne) {
    stage.screen.reset();
    offer(4020);
    stage.screen = QRect(0, 28, 1440, 872);
    controller.showWaiting();
    ASSERT_NE(model(), nullptr);
    EXPECT_TRUE(model()->body().contains(text("Keep 1 h 7 min of ")));
    controller.showWaiting();
    EXPECT_EQ(stage.raised, 1) << "what is up is left alone";
    model()->keep();
    controller.showWaiting();
    EXPECT_EQ(model(), nullptr) << "the offer is answered";
}

TEST_F(RecoveryNoticeTest, ScreenThatComesUnderASummaryDoesNotBringItBeforeTheSummaryGoes) {
    takeCornerForSummary();
    offer(600);
    controller.showWaiting();
    EXPECT_EQ(model(), nullptr);
    slot.release(&summary);
    EXPECT_NE(model(), nullptr);
    EXPECT_EQ(stage.raised, 1);
}

TEST_F(RecoveryNoticeTest, ANoticeThatWaitsDiesWithItsController) {
    takeCornerForSummary();
    {
        RecoveryNoticeController shortLived(environment);
        shortLived.show(session(600), {}, {});
    }
    slot.release(&summary);
    EXPECT_EQ(model(), nullptr);
}

} // namespace
} // namespace vantle::tests
