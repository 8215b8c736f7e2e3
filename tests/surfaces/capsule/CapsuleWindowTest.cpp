// The views of the capsule in a window, worked by pointer and keys.
#include "CapsuleWindowWorld.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

TEST_F(CapsuleWindowTest, TheWindowFollowsTheCapsuleInWhatFeelsThePointer) {
    raiseIdle();
    EXPECT_EQ(window->panel().geometry(), QRect(451, 0, 538, 219));
    EXPECT_EQ(host.inputRegion, QRegion(window->capsule().openFrame().toRect()));
    EXPECT_FALSE(host.sensor);
}

TEST_F(CapsuleWindowTest, AtRestTheWindowFeelsNothingAndThePointerThatRestsInTheStripOpensIt) {
    raiseIdle();
    window->capsule().collapse();
    EXPECT_EQ(host.inputRegion, QRegion());
    ASSERT_TRUE(host.sensor);
    EXPECT_EQ(host.sensor->part, QRect(605, 0, 230, 10));
    host.movePointer({720, 5});
    EXPECT_TRUE(window->capsule().isExpanded());
    EXPECT_EQ(host.inputRegion, QRegion(window->capsule().openFrame().toRect()));
}

TEST_F(CapsuleWindowTest, WhereNothingElseSensesThePointerTheWindowFeelsTheStrip) {
    host.senses = false;
    raiseIdle();
    window->capsule().collapse();
    EXPECT_EQ(host.inputRegion, QRegion(154, 0, 230, 10));
    moveTo({269, 5});
    EXPECT_TRUE(window->capsule().isExpanded());
}

TEST_F(CapsuleWindowTest, OpenBelowABarItLeavesTheBarAlone) {
    world.setTopBar(26);
    raiseIdle();
    EXPECT_EQ(window->panel().geometry(), QRect(451, 0, 538, 245));
    EXPECT_EQ(host.inputRegion, QRegion(window->capsule().openFrame().toRect()));
    EXPECT_EQ(host.inputRegion.boundingRect().top(), 26);
    ASSERT_TRUE(host.sensor);
    EXPECT_EQ(host.sensor->part, QRect(605, 0, 230, 10));
    EXPECT_TRUE(seesBelow({269, 25}));
    EXPECT_FALSE(seesBelow({269, 26}));
    click({269, 12});
    EXPECT_TRUE(world.calls.isEmpty());
    click({269, 56});
    EXPECT_EQ(world.calls, QStringList(text("tap")));
}

TEST_F(CapsuleWindowTest, BesideAHousingAllOfItTakesTheClick) {
    ScreenShape& screen = world.screens.shapes.front();
    screen.safeAreaTop = 32;
    screen.auxiliaryTopLeft = QRectF(0, 0, 620, 32);
    screen.auxiliaryTopRight = QRectF(820, 0, 620, 32);
    raiseIdle();
    const QRect open = window->capsule().openFrame().toRect();
    ASSERT_GT(open.width(), 240);
    EXPECT_TRUE(host.inputRegion.contains(open));
    for (const QPoint place : {open.topLeft() + QPoint(8, 4), open.topRight() + QPoint(-8, 4),
                               open.topLeft() + QPoint(8, 60)})
        click(place);
    EXPECT_EQ(world.calls, QStringList(3, text("tap")));
}

TEST_F(CapsuleWindowTest, WithoutACompositorThereIsNoWindowWhileItRests) {
    host.composited = false;
    raiseIdle();
    EXPECT_TRUE(window->panel().isVisible());
    EXPECT_EQ(window->panel().mask(), QRegion(window->capsule().openFrame().toRect()));
    EXPECT_FALSE(host.sensor);
    window->capsule().collapse();
    EXPECT_FALSE(window->panel().isVisible());
    ASSERT_TRUE(host.sensor);
    EXPECT_EQ(host.sensor->part, QRect(605, 0, 230, 10));
    host.movePointer({720, 5});
    EXPECT_TRUE(window->capsule().isExpanded());
    EXPECT_TRUE(window->panel().isVisible());
    EXPECT_FALSE(host.sensor);
}

TEST_F(CapsuleWindowTest, EndOfTheCompositorTakesTheRestingWindowAwayAndItsReturnBringsItBack) {
    raiseIdle();
    window->capsule().collapse();
    ASSERT_TRUE(window->panel().isVisible());
    host.setComposited(false);
    EXPECT_FALSE(window->panel().isVisible());
    ASSERT_TRUE(host.sensor);
    EXPECT_EQ(host.sensor->part, QRect(605, 0, 230, 10));
    host.setComposited(true);
    EXPECT_TRUE(window->panel().isVisible());
    EXPECT_EQ(host.inputRegion, QRegion());
    EXPECT_TRUE(host.sensor);
    EXPECT_TRUE(window->panel().mask().isEmpty());
}

TEST_F(CapsuleWindowTest, OpenCapsuleIsSquareAndOpaqueWhileThereIsNoCompositor) {
    raiseIdle();
    const QRect open = window->capsule().openFrame().toRect();
    EXPECT_TRUE(seesBelow(open.bottomLeft())) << "round";
    host.setComposited(false);
    EXPECT_TRUE(window->panel().isVisible());
    EXPECT_EQ(window->panel().mask(), QRegion(open));
    expectOpaqueCorners(open);
    host.setComposited(true);
    EXPECT_TRUE(window->panel().mask().isEmpty());
    EXPECT_TRUE(seesBelow(open.bottomLeft()));
}

TEST_F(CapsuleWindowTest, MenuAndEditorHaveOpaqueCornersWithoutACompositor) {
    host.composited = false;
    raiseIdle();
    click(middleOf(text("Design")), Qt::RightButton);
    expectOpaqueCorners(window->capsule().overlayRect().toRect());
    click(middleOf(text("Rename…")));
    ASSERT_TRUE(window->capsule().editor()->isShown());
    expectOpaqueCorners(window->capsule().overlayRect().toRect());
}

TEST_F(CapsuleWindowTest, WhereNoInputRegionHoldsTheWindowIsWhatFeelsThePointer) {
    host.inputRegions = false;
    host.senses = false;
    raiseIdle();
    const QRect open = window->capsule().openFrame().toRect();
    EXPECT_EQ(window->panel().geometry(), open.translated(451, 0));
    click(middleOf(text("Design")));
    EXPECT_EQ(world.calls, QStringList(text("pick product_design")));
    click(middleOf(text("Design")), Qt::RightButton);
    ASSERT_NE(item(text("Rename…")), nullptr);
    click(middleOf(text("Rename…")));
    EXPECT_TRUE(window->capsule().editor()->isShown());
    window->capsule().dismissOverlay();
    window->capsule().collapse();
    EXPECT_EQ(window->panel().geometry(), QRect(605, 0, 230, 10));
    EXPECT_TRUE(window->panel().isVisible()) << "it feels the pointer";
    window->capsule().animateOut([] {});
    EXPECT_FALSE(window->panel().isVisible() && window->capsule().isLeaving())
        << "it takes no press while it fades";
}

TEST_F(CapsuleWindowTest, IsMarkedAsFloatingBeforeItIsShown) {
    raiseIdle();
    EXPECT_TRUE(host.placedBeforeShow.contains(&window->panel()));
}

TEST_F(CapsuleWindowTest, AClickOnAChipPicksItsSkillAndOneBesideItStarts) {
    raiseIdle();
    click(middleOf(text("Design")));
    EXPECT_EQ(world.calls, QStringList(text("pick product_design")));
    click({269, 30});
    EXPECT_EQ(world.calls.size(), 2);
    EXPECT_EQ(world.calls.last(), text("tap"));
    click(middleOf(text("Start")));
    EXPECT_EQ(world.calls.size(), 3);
    EXPECT_EQ(world.calls.last(), text("tap"));
}

TEST_F(CapsuleWindowTest, APressOnTheEmptyRowReleasedOnAChipOrTheAddRowDoesNothing) {
    raiseIdle();
    for (const QPointF end : {middleOf(text("Design")), middleOf(text("New skill"))}) {
        moveTo({269, 30});
        mouse(QEvent::MouseButtonPress, {269, 30}, Qt::LeftButton, Qt::LeftButton);
        mouse(QEvent::MouseMove, end, Qt::NoButton, Qt::LeftButton);
        mouse(QEvent::MouseButtonRelease, end, Qt::LeftButton, Qt::NoButton);
        settle();
        EXPECT_TRUE(world.calls.isEmpty());
        EXPECT_FALSE(window->capsule().editor()->isShown());
    }
}

TEST_F(CapsuleWindowTest, HoveringAChipOfTheIdleFormShowsThePlaySign) {
    raiseIdle();
    QQuickItem* const chip = item(text("Design"));
    ASSERT_NE(chip, nullptr);
    EXPECT_FALSE(chip->property("showsPlay").toBool());
    moveTo(middleOf(text("Design")));
    EXPECT_TRUE(chip->property("showsPlay").toBool());
    moveTo({269, 30});
    EXPECT_FALSE(chip->property("showsPlay").toBool());
}

TEST_F(CapsuleWindowTest, ARunningChipShowsNoPlaySignAndHasNoMenu) {
    ASSERT_TRUE(world.tracking.tracker.start(world.skills[0], 0));
    raise(world.runningForm());
    moveTo(middleOf(text("Design")));
    EXPECT_FALSE(item(text("Design"))->property("showsPlay").toBool());
    click(middleOf(text("Design")), Qt::RightButton);
    EXPECT_EQ(item(text("Rename…")), nullptr);
    EXPECT_TRUE(world.calls.isEmpty());
}

TEST_F(CapsuleWindowTest, ARightClickOpensTheMenuWithTheKeyboardAndEscapeClosesIt) {
    raiseIdle();
    click(middleOf(text("Design")), Qt::RightButton);
    EXPECT_NE(item(text("Rename…")), nullptr);
    EXPECT_NE(item(text("Change color…")), nullptr);
    EXPECT_NE(item(text("Delete Design")), nullptr);
    EXPECT_EQ(host.keyboardOwner, &window->panel());
    const QQuickItem* const row = item(text("Delete Design"));
    const QPointF corner = row->mapToScene(QPointF(row->width(), row->height()));
    EXPECT_TRUE(host.inputRegion.contains((corner - QPointF(2, 2)).toPoint()));
    EXPECT_GT(window->panel().height(), corner.y());
    press(Qt::Key_Escape);
    EXPECT_EQ(item(text("Rename…")), nullptr);
    EXPECT_EQ(host.keyboardOwner, nullptr);
    EXPECT_TRUE(world.calls.isEmpty());
    EXPECT_EQ(window->capsule().collapseSuspendCount(), 0);
}

TEST_F(CapsuleWindowTest, APressBesideTheMenuClosesItAndDoesNothingElse) {
    raiseIdle();
    click(middleOf(text("Design")), Qt::RightButton);
    click({269, 30});
    EXPECT_EQ(item(text("Rename…")), nullptr);
    EXPECT_TRUE(world.calls.isEmpty());
}

TEST_F(CapsuleWindowTest, TheMenuWorksByKeysAlone) {
    raiseIdle();
    click(middleOf(text("Design")), Qt::RightButton);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    ASSERT_TRUE(window->capsule().editor()->isShown());
    EXPECT_TRUE(shows(text("Choose a color")));
}

TEST_F(CapsuleWindowTest, AMenuOpenedByAKeyHasItsFirstRowMarked) {
    raiseIdle();
    item(text("Design"))->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Menu);
    ASSERT_NE(item(text("Rename…")), nullptr);
    EXPECT_TRUE(item(text("Rename…"))->hasActiveFocus());
    press(Qt::Key_Return);
    EXPECT_TRUE(shows(text("Rename skill")));
}

TEST_F(CapsuleWindowTest, DeletingFromTheMenuReachesTheModel) {
    raiseIdle();
    click(middleOf(text("Design")), Qt::RightButton);
    click(middleOf(text("Delete Design")));
    EXPECT_EQ(world.calls, QStringList(text("delete product_design")));
}

TEST_F(CapsuleWindowTest, RenamingShowsTheNameAndNoColours) {
    raiseIdle();
    click(middleOf(text("Design")), Qt::RightButton);
    click(middleOf(text("Rename…")));
    EXPECT_TRUE(shows(text("Rename skill")));
    EXPECT_TRUE(shows(text("Use a short name you will recognize at a glance.")));
    EXPECT_TRUE(shows(text("NAME")));
    EXPECT_FALSE(shows(text("COLOR")));
    EXPECT_EQ(item(text("Red")), nullptr);
    ASSERT_NE(item(text("Save")), nullptr);
    EXPECT_TRUE(item(text("Save"))->isEnabled());
    EXPECT_EQ(window->capsule().overlayRect().size(), QSizeF(284, 158));
}

TEST_F(CapsuleWindowTest, RecolouringShowsTheColourAndNoName) {
    raiseIdle();
    click(middleOf(text("Design")), Qt::RightButton);
    click(middleOf(text("Change color…")));
    EXPECT_TRUE(shows(text("Choose a color")));
    EXPECT_TRUE(shows(text("COLOR")));
    EXPECT_FALSE(shows(text("NAME")));
    EXPECT_EQ(item(text("Skill name")), nullptr);
    ASSERT_NE(item(text("Purple")), nullptr);
    EXPECT_TRUE(item(text("Purple"))->property("chosen").toBool());
    EXPECT_EQ(window->capsule().overlayRect().size(), QSizeF(284, 112));
    click(middleOf(text("Red")));
    click(middleOf(text("Save")));
    EXPECT_EQ(world.calls, QStringList(text("update product_design Design ff375f")));
}

TEST_F(CapsuleWindowTest, AddingBeginsEmptyWithTheFirstColour) {
    raiseIdle();
    click(middleOf(text("New skill")));
    EXPECT_TRUE(shows(text("Create a skill")));
    EXPECT_TRUE(shows(text("What do you want to build time toward?")));
    EXPECT_TRUE(shows(text("e.g. Writing")));
    EXPECT_TRUE(shows(text("NAME")) && shows(text("COLOR")));
    ASSERT_NE(item(text("Red")), nullptr);
    EXPECT_TRUE(item(text("Red"))->property("chosen").toBool());
    ASSERT_NE(item(text("Create skill")), nullptr);
    EXPECT_FALSE(item(text("Create skill"))->isEnabled());
    EXPECT_EQ(window->capsule().overlayRect().size(), QSizeF(284, 204));
}

TEST_F(CapsuleWindowTest, ANewNameIsTypedOverTheOldOneAndReturnSavesIt) {
    raiseIdle();
    click(middleOf(text("Design")), Qt::RightButton);
    click(middleOf(text("Rename…")));
    EXPECT_EQ(host.keyboardOwner, &window->panel());
    ASSERT_NE(item(text("Skill name")), nullptr);
    EXPECT_NE(item(text("Rename skill")), nullptr);
    type(text("Sketching"));
    press(Qt::Key_Return);
    EXPECT_EQ(world.calls, QStringList(text("update product_design Sketching bf5af2")));
    EXPECT_EQ(item(text("Skill name")), nullptr);
    EXPECT_EQ(host.keyboardOwner, nullptr);
}

TEST_F(CapsuleWindowTest, EscapeInTheFieldLeavesTheNameAsItWas) {
    raiseIdle();
    click(middleOf(text("Design")), Qt::RightButton);
    click(middleOf(text("Rename…")));
    type(text("Sketching"));
    press(Qt::Key_Escape);
    EXPECT_TRUE(world.calls.isEmpty());
    EXPECT_FALSE(window->capsule().editor()->isShown());
}

TEST_F(CapsuleWindowTest, ANameOfBlanksKeepsTheButtonDisabledAndReturnDoesNothing) {
    raiseIdle();
    click(middleOf(text("New skill")));
    ASSERT_NE(item(text("Create skill")), nullptr);
    EXPECT_FALSE(item(text("Create skill"))->isEnabled());
    type(text("   "));
    EXPECT_FALSE(item(text("Create skill"))->isEnabled());
    press(Qt::Key_Return);
    EXPECT_TRUE(window->capsule().editor()->isShown());
    EXPECT_TRUE(world.calls.isEmpty());
}

TEST_F(CapsuleWindowTest, TheTwentyFirstCharacterIsCutAsItIsTypedWithTheCaretAtTheEnd) {
    raiseIdle();
    click(middleOf(text("New skill")));
    type(text("abcdefghijklmnopqrst"));
    EXPECT_EQ(window->capsule().editor()->name(), text("abcdefghijklmnopqrst"));
    type(text("u"));
    EXPECT_EQ(window->capsule().editor()->name(), text("abcdefghijklmnopqrst"));
    press(Qt::Key_Backspace);
    type(text("z"));
    EXPECT_EQ(window->capsule().editor()->name(), text("abcdefghijklmnopqrsz"));
}

TEST_F(CapsuleWindowTest, ANewSkillTakesTheColourThatWasClicked) {
    raiseIdle();
    click(middleOf(text("New skill")));
    type(text("Writing"));
    click(middleOf(text("Yellow")));
    click(middleOf(text("Create skill")));
    EXPECT_EQ(world.calls, QStringList(text("add Writing ffd60a")));
}

TEST_F(CapsuleWindowTest, AClickOnAnotherWindowDismissesTheEditor) {
    raiseIdle();
    click(middleOf(text("New skill")));
    Q_EMIT window->panel().keyboardLost();
    settle();
    EXPECT_FALSE(window->capsule().editor()->isShown());
}

TEST_F(CapsuleWindowTest, ACapsuleThatGoesWhileItIsClickedGoesQuietly) {
    auto form = world.idleForm();
    form.onPick = [this](const QString&) { window.reset(); };
    raise(std::move(form));
    const QPointF place = middleOf(text("Design"));
    QPointer<FloatingPanel> panel(&window->panel());
    mouse(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(window, nullptr);
    settle();
    EXPECT_TRUE(panel.isNull());
}

} // namespace
} // namespace vantle::tests
