#include "surfaces/cards/StopSummaryController.h"

#include "support/Text.h"
#include "surfaces/cards/CardWorld.h"
#include "surfaces/cards/RecoveryNoticeController.h"
#include "surfaces/cards/StopSummaryModel.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

using Kind = TopRightCardSlot::Kind;

class StopSummaryTest : public testing::Test, protected CardWorld {
protected:
    void show(bool spotlightNote = false) {
        collaborators::StopSummary::Content content;
        content.session = session(300);
        content.carrySeconds = 300;
        content.spotlightNote = spotlightNote;
        controller.show(content, [this](const std::optional<QString>& note) {
            closes.push_back(note);
            resolvedBeforeClose = resolved.count();
        });
    }
    [[nodiscard]] bool isUp() const { return stage.up(CardView::StopSummary) != nullptr; }
    [[nodiscard]] StopSummaryModel& model() const {
        return *stage.modelOf<StopSummaryModel>(CardView::StopSummary);
    }

    StopSummaryController controller{environment};
    QSignalSpy resolved{&notifications, &NotificationCenter::HFStopSummaryResolved};
    std::vector<std::optional<QString>> closes;
    qsizetype resolvedBeforeClose = -1;
};

using Closes = std::vector<std::optional<QString>>;

TEST_F(StopSummaryTest, TheCardStandsInTheCornerWithoutTheKeyboard) {
    show();
    ASSERT_TRUE(isUp());
    EXPECT_EQ(stage.up(CardView::StopSummary)->frame(), QRect(1048, 38, 380, 263));
    EXPECT_FALSE(stage.up(CardView::StopSummary)->hasKeyboard);
    ASSERT_TRUE(slot.holder());
    EXPECT_EQ(slot.holder()->kind, Kind::Summary);
}

TEST_F(StopSummaryTest, CardFollowsTheMainScreenWithItsNote) {
    show();
    (void)model().takeNote(QStringLiteral("half"));
    stage.moveTo(QRect(0, 0, 1024, 768));
    ASSERT_TRUE(isUp());
    EXPECT_EQ(stage.up(CardView::StopSummary)->frame(), QRect(632, 10, 380, 263));
    stage.moveTo(std::nullopt);
    EXPECT_TRUE(isUp()) << "it waits for a screen";
    stage.moveTo(QRect(100, 0, 1024, 768));
    EXPECT_EQ(stage.up(CardView::StopSummary)->frame().x(), 732);
    model().submit();
    EXPECT_EQ(closes, Closes{QStringLiteral("half")});
    stage.moveTo(QRect(0, 0, 800, 600)); // nothing is there any more
}

TEST_F(StopSummaryTest, LeftAloneItClosesAfterTwentySecondsWithoutANote) {
    show();
    time.advance(19.9);
    EXPECT_TRUE(isUp());
    EXPECT_EQ(closes, Closes{});
    time.advance(0.2);
    EXPECT_FALSE(isUp());
    EXPECT_EQ(closes, Closes{std::nullopt});
    EXPECT_EQ(resolved.count(), 1);
    EXPECT_FALSE(slot.holder());
}

TEST_F(StopSummaryTest, ACardThatAsksForTheNoteWaitsFortyFiveSecondsAndHasTheKeyboard) {
    show(true);
    time.settle();
    EXPECT_TRUE(stage.up(CardView::StopSummary)->hasKeyboard);
    time.advance(44.9);
    EXPECT_TRUE(isUp());
    time.advance(0.2);
    EXPECT_EQ(closes, Closes{std::nullopt});
}

TEST_F(StopSummaryTest, CursorIsPutIntoTheFieldOnTheNextTurnAndTheCardStillGoes) {
    show(true);
    const QSignalSpy asked(&model(), &StopSummaryModel::noteFocusRequested);
    EXPECT_EQ(asked.count(), 0);
    time.settle();
    EXPECT_EQ(asked.count(), 1);
    time.advance(46);
    EXPECT_FALSE(isUp());
}

TEST_F(StopSummaryTest, OneKeystrokeKeepsItUpForGoodAlsoWhenItIsDeleted) {
    show();
    time.advance(19);
    (void)model().takeNote(text("a"));
    (void)model().takeNote(QString());
    time.advance(3600);
    EXPECT_TRUE(isUp());
    EXPECT_EQ(time.timerCount(), 0u);
    model().submit();
    EXPECT_EQ(closes, Closes{std::nullopt});
}

TEST_F(StopSummaryTest, AClickIntoTheFieldKeepsItUp) {
    show();
    model().notePressed();
    time.advance(60);
    EXPECT_TRUE(isUp());
}

TEST_F(StopSummaryTest, ATypedNoteIsHandedOverTrimmedAndOnce) {
    show();
    (void)model().takeNote(text("  Retries land in order\n"));
    StopSummaryModel& shown = model();
    const auto kept = stage.up(CardView::StopSummary)->model;
    shown.submit();
    EXPECT_EQ(closes, Closes{text("Retries land in order")});
    shown.submit(); // a second click while the card fades
    EXPECT_EQ(closes.size(), 1u);
    EXPECT_EQ(resolved.count(), 1);
}

TEST_F(StopSummaryTest, TheNoteIsDeliveredBeforeTheSignalThatTheCardHasClosed) {
    show();
    model().submit();
    EXPECT_EQ(resolvedBeforeClose, 0);
    EXPECT_EQ(resolved.count(), 1);
}

TEST_F(StopSummaryTest, ANoteOfSpacesIsNone) {
    show();
    (void)model().takeNote(text(" \n\t "));
    model().submit();
    EXPECT_EQ(closes, Closes{std::nullopt});
}

TEST_F(StopSummaryTest, EscapeGivesTheKeyboardBackAndKeepsTheNote) {
    show(true);
    (void)model().takeNote(text("half a thought"));
    model().turnAway();
    EXPECT_FALSE(stage.up(CardView::StopSummary)->hasKeyboard);
    model().submit();
    EXPECT_EQ(closes, Closes{text("half a thought")});
}

TEST_F(StopSummaryTest, ASecondSessionClosesTheCardOfTheFirstWithoutItsNote) {
    show();
    (void)model().takeNote(text("unsaved"));
    show();
    EXPECT_EQ(closes, Closes{std::nullopt});
    EXPECT_TRUE(isUp());
    EXPECT_FALSE(model().hasNote());
    EXPECT_EQ(stage.panels.size(), 1u);
    time.advance(21);
    EXPECT_EQ(closes, Closes({std::nullopt, std::nullopt}));
}

TEST_F(StopSummaryTest, WithoutAnyScreenTheSessionGoesOnUnchanged) {
    stage.screen.reset();
    show();
    EXPECT_EQ(closes, Closes{std::nullopt});
    EXPECT_EQ(resolved.count(), 0) << "no card was there to close";
    EXPECT_FALSE(slot.holder());
    EXPECT_EQ(time.timerCount(), 0u);
}

TEST_F(StopSummaryTest, APromptIsPushedOutForGood) {
    int evictions = 0;
    const int prompt = 0;
    (void)slot.request(&prompt, Kind::Prompt, [&] { ++evictions; }, {});
    show();
    EXPECT_EQ(evictions, 1);
    EXPECT_TRUE(isUp());
    EXPECT_FALSE(slot.hasQueued());
}

TEST_F(StopSummaryTest, ARecoveryNoticeReturnsWhenTheCardCloses) {
    RecoveryNoticeController recovery(environment);
    recovery.show(session(600), {}, {});
    show();
    EXPECT_EQ(stage.up(CardView::RecoveryNotice), nullptr);
    time.advance(21);
    EXPECT_FALSE(isUp());
    EXPECT_NE(stage.up(CardView::RecoveryNotice), nullptr);
}

TEST_F(StopSummaryTest, ADeletedSkillIsStillNamed) {
    collaborators::StopSummary::Content content;
    content.session = session(300, text("wood_work"));
    controller.show(content, {});
    EXPECT_EQ(model().skillName(), skills.display(text("wood_work")).name);
}

TEST_F(StopSummaryTest, RowInThePanelGivesTheKeyboardToTheNoteAndKeepsTheCardUp) {
    show();
    EXPECT_EQ(openQuestion().text, text("Last session: 5 min of Build"));
    const QSignalSpy asked(&model(), &StopSummaryModel::noteFocusRequested);
    answer(text("Write a note"));
    time.settle();
    EXPECT_TRUE(stage.up(CardView::StopSummary)->hasKeyboard);
    EXPECT_EQ(asked.count(), 1);
    time.advance(3600);
    EXPECT_TRUE(isUp());
    (void)model().takeNote(text("by keys"));
    model().submit();
    EXPECT_EQ(closes, Closes{text("by keys")});
    EXPECT_TRUE(questions.all().empty()) << "the session has its note";
}

TEST_F(StopSummaryTest, CardThatWentComesBackForTheNoteUntilTheNextSession) {
    show();
    time.advance(21);
    ASSERT_FALSE(isUp());
    answer(text("Write a note"));
    time.settle();
    ASSERT_TRUE(isUp());
    EXPECT_TRUE(stage.up(CardView::StopSummary)->hasKeyboard);
    model().turnAway(); // not now
    EXPECT_FALSE(isUp());
    answer(text("Write a note"));
    (void)model().takeNote(text("late"));
    model().submit();
    EXPECT_EQ(closes.back(), text("late"));

    show();
    time.advance(21);
    controller.forgetNote();
    EXPECT_TRUE(questions.all().empty());
    controller.openNote();
    EXPECT_FALSE(isUp());
}

TEST_F(StopSummaryTest, CardThatIsUpTakesItsNoteAlsoDuringTheNextSession) {
    show();
    controller.forgetNote();
    answer(text("Write a note"));
    (void)model().takeNote(text("still here"));
    model().submit();
    EXPECT_EQ(closes, Closes{text("still here")});
    EXPECT_TRUE(questions.all().empty());
}

TEST_F(StopSummaryTest, PracticeLeavesNoRowBehindTheCard) {
    show(true);
    time.advance(46);
    EXPECT_TRUE(questions.all().empty());
}

} // namespace
} // namespace vantle::tests
