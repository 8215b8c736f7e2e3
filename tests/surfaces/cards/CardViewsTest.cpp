// The recovery notice, the two questions and the toast under the user's hands.
#include "support/Text.h"
#include "surfaces/cards/CardViewWorld.h"
#include "surfaces/cards/RecoveryNoticeController.h"
#include "surfaces/cards/RetagToastController.h"
#include "surfaces/cards/TagPromptController.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

using Outcome = collaborators::TagPrompt::Outcome;

class CardViewsTest : public testing::Test, protected CardViewWorld {
protected:
    void offer() {
        recovery.show(
            session(4020), [this] { answers << text("discarded"); },
            [this] { answers << text("kept"); });
        giveKeyboard();
    }
    void ask() {
        ASSERT_TRUE(
            prompt.show(text("Blender"), skills.all(), true, false, [this](const Outcome& outcome) {
                answers << (outcome.kind == Outcome::Kind::Ignore    ? text("ignore")
                            : outcome.kind == Outcome::Kind::Dismiss ? text("dismiss")
                                                                     : outcome.skillId);
            }));
        giveKeyboard();
    }
    void askCorrection() {
        ASSERT_TRUE(
            prompt.showCorrection(text("Blender"), skills.by(text("product_design")),
                                  [this](bool yes) { answers << text(yes ? "always" : "no"); }));
        giveKeyboard();
    }
    static QSize feltSize() { return window()->inputRegion().boundingRect().size(); }

    RecoveryNoticeController recovery{windowEnvironment};
    TagPromptController prompt{windowEnvironment};
    RetagToastController toast{windowEnvironment};
    QStringList answers;
};

TEST_F(CardViewsTest, TheNoticeIsAnsweredByItsButtons) {
    offer();
    EXPECT_EQ(feltSize(), QSize(380, 160));
    click(text("Keep"));
    offer();
    click(text("Discard"));
    EXPECT_EQ(answers, QStringList({text("kept"), text("discarded")}));
    EXPECT_EQ(window(), nullptr);
}

TEST_F(CardViewsTest, ReturnKeepsTheSessionAndTabThenSpaceDiscards) {
    offer();
    press(Qt::Key_Return);
    offer();
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    EXPECT_EQ(answers, QStringList({text("kept"), text("discarded")}));
}

TEST_F(CardViewsTest, AQuestionIsAnsweredByAChip) {
    ask();
    EXPECT_EQ(feltSize(), QSize(380, 200));
    click(text("Founder Ops"));
    EXPECT_EQ(answers, QStringList(skills.all()[4].id));
}

TEST_F(CardViewsTest, AQuestionIsAnsweredByItsOtherControls) {
    ask();
    click(text("Ignore this app"));
    ask();
    click(text("Not now"));
    ask();
    press(Qt::Key_Escape);
    EXPECT_EQ(answers, QStringList({text("ignore"), text("dismiss"), text("dismiss")}));
}

TEST_F(CardViewsTest, TheArrowKeysLeadFromChipToChip) {
    ask();
    press(Qt::Key_Tab);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Left);
    press(Qt::Key_Return);
    EXPECT_EQ(answers, QStringList(skills.all()[1].id));
}

TEST_F(CardViewsTest, WhatAButtonDoesIsToldWhereTheSkillStoodWhileThePointerIsOnIt) {
    askCorrection();
    QQuickItem& root = *window()->rootObject();
    EXPECT_EQ(root.property("help").toString(), QString());
    QTest::mouseMove(window(), centreOf(*named(text("Always"))));
    EXPECT_TRUE(await([&] {
        return root.property("help").toString() ==
               text("Auto mode counts Blender as Design from now on");
    }));
    QTest::mouseMove(window(), centreOf(*named(text("No"))));
    EXPECT_TRUE(await(
        [&] { return root.property("help").toString() == text("Keeps Auto mode as it is"); }));
    QTest::mouseMove(window(), QPoint(80, 60));
    EXPECT_TRUE(await([&] { return root.property("help").toString().isEmpty(); }));
}

TEST_F(CardViewsTest, TheCorrectionIsAnsweredByButtonsAndKeys) {
    askCorrection();
    click(text("Always"));
    askCorrection();
    click(text("No"));
    askCorrection();
    press(Qt::Key_Return);
    askCorrection();
    press(Qt::Key_Escape);
    EXPECT_EQ(answers, QStringList({text("always"), text("no"), text("always"), text("no")}));
}

TEST_F(CardViewsTest, TheToastFeelsNoPointerAndKeepsBelowACard) {
    askCorrection();
    const QRect card = window()->inputRegion().boundingRect().translated(window()->position());
    toast.show(text("Build"), 0x7A78FF, 720);
    ASSERT_EQ(windows().size(), 2);
    FloatingPanel* const floating =
        windows()[0]->inputRegion().isEmpty() ? windows()[0] : windows()[1];
    EXPECT_TRUE(floating->inputRegion().isEmpty());
    const QRect ground = floating->rootObject()->property("groundRect").toRectF().toRect();
    EXPECT_EQ(floating->y() + ground.y(), card.y() + card.height() + 12);
    EXPECT_EQ(ground.height(), 40);

    slot.takeForSummary(&answers, [] {}); // the card goes
    time.advance(0.25);
    EXPECT_TRUE(await([&] { return floating->y() + ground.y() == 38; }));
}

} // namespace
} // namespace vantle::tests
