#include "surfaces/commandcenter/CommandCenterController.h"

#include "app/ModelWorld.h"
#include "app/OpenQuestions.h"
#include "fakes/FakePanelHost.h"
#include "fakes/FakePointerPresses.h"
#include "fakes/FakeScreens.h"
#include "fakes/FakeWindowManager.h"
#include "support/Await.h"
#include "surfaces/panel/FloatingPanel.h"
#include "surfaces/window/SharedEngine.h"
#include "surfaces/window/WindowRouter.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQuickItem>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

constexpr QRect kItem(1000, 2, 24, 24);

class CommandCenterControllerTest : public testing::Test {
protected:
    CommandCenterControllerTest() {
        world.launch();
        world.settle();
        controller = std::make_unique<CommandCenterController>(CommandCenterController::Environment{
            *world.model, *world.skills, world.preferences, world.time, world.time, router, engine,
            host, screens, presses, questions});
        controller->statusItemGeometry = [this] { return item; };
    }

    /// Of what the user sees.
    [[nodiscard]] QRect frame() const {
        const FloatingPanel* const panel = controller->panel();
        return panel->inputRegion().boundingRect().translated(panel->position());
    }
    void press(Qt::Key key) {
        FloatingPanel* const panel = controller->panel();
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QCoreApplication::sendEvent(panel, &event);
        }
    }
    static void deleteWhatIsHidden() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    ModelWorld world;
    fakes::FakeScreens screens;
    fakes::FakePanelHost host;
    fakes::FakeWindowManager manager;
    fakes::FakePointerPresses presses;
    OpenQuestions questions;
    SharedEngine engine{world.time};
    QRect item = kItem;
    WindowRouter router{{engine, world.preferences, screens, host, manager, world.time, {}},
                        world.notifications};
    std::unique_ptr<CommandCenterController> controller;
};

TEST_F(CommandCenterControllerTest, AClickOnTheItemShowsThePanelUnderItWithTheKeyboard) {
    controller->toggle(kItem.center());
    ASSERT_TRUE(controller->isShown());
    EXPECT_EQ(controller->panel()->title(), QStringLiteral("Vantle Command Center"));
    EXPECT_EQ(frame().y(), 36);
    EXPECT_EQ(frame().center().x(), 1011);
    EXPECT_EQ(frame().width(), 360);
    EXPECT_EQ(host.keyboardOwner, controller->panel());
}

TEST_F(CommandCenterControllerTest, ASecondClickHidesItAndGivesTheKeyboardBack) {
    controller->toggle(kItem.center());
    presses.press(kItem.center()); // seen, but toggle() decides
    ASSERT_TRUE(controller->isShown());
    controller->toggle(kItem.center());
    EXPECT_FALSE(controller->isShown());
    EXPECT_EQ(host.keyboardOwner, nullptr);
    EXPECT_FALSE(presses.watched);
}

TEST_F(CommandCenterControllerTest, WhereTheItemsPlaceIsUnknownASecondClickDoesNotOpenItAgain) {
    item = {};
    controller->toggle({1011, 14});
    ASSERT_TRUE(controller->isShown());
    presses.press({1011, 14});
    EXPECT_FALSE(controller->isShown());
    controller->toggle({1011, 14});
    EXPECT_FALSE(controller->isShown());
    presses.press({1011, 14});
    controller->toggle({1011, 14});
    EXPECT_TRUE(controller->isShown());
}

TEST_F(CommandCenterControllerTest, AHiddenItemPutsItAtTheTopRight) {
    item = {};
    controller->show();
    EXPECT_EQ(frame().topRight(), QPoint(1440 - 12 - 1, 36));
}

TEST_F(CommandCenterControllerTest, APressElsewhereHidesIt) {
    controller->show();
    presses.press(frame().center());
    EXPECT_TRUE(controller->isShown());
    presses.press({100, 700});
    EXPECT_FALSE(controller->isShown());
    presses.press({100, 700});
    EXPECT_FALSE(presses.watched);
}

TEST_F(CommandCenterControllerTest, EscapeHidesItAndLeavesTheEditorAsItWas) {
    controller->show();
    controller->content().addMode();
    controller->content().editor()->setName(QStringLiteral("Resea"));
    press(Qt::Key_Escape);
    EXPECT_FALSE(controller->isShown());
    controller->show();
    EXPECT_TRUE(controller->content().editor()->isShown());
    EXPECT_EQ(controller->content().editor()->name(), QStringLiteral("Resea"));
}

TEST_F(CommandCenterControllerTest, ReturnStartsWithoutHidingIt) {
    controller->show();
    controller->panel()->requestActivate(); // as taking the keyboard does
    ASSERT_TRUE(await([&] { return controller->panel()->isActive(); }));
    press(Qt::Key_Return);
    EXPECT_EQ(world.model->tracker().state(), TrackerCore::State::Running);
    EXPECT_TRUE(controller->isShown());
}

TEST_F(CommandCenterControllerTest, LosingTheKeyboardHidesIt) {
    controller->show();
    Q_EMIT controller->panel()->keyboardLost();
    world.settle();
    EXPECT_FALSE(controller->isShown());
}

TEST_F(CommandCenterControllerTest, AHiddenPanelLeavesNothing) {
    controller->show();
    EXPECT_TRUE(engine.isAlive());
    controller->hide();
    deleteWhatIsHidden();
    world.time.advance(SharedEngine::kept.count());
    EXPECT_FALSE(engine.isAlive());
}

TEST_F(CommandCenterControllerTest, ItGrowsWithTheEditor) {
    controller->show();
    const int before = frame().height();
    controller->content().addMode();
    EXPECT_TRUE(await([&] {
        world.settle();
        return frame().height() > before + 100;
    }));
    EXPECT_EQ(frame().y(), 36);
}

TEST_F(CommandCenterControllerTest, OnALowScreenItIsNoHigherThanTheFreeArea) {
    screens.shapes = {{.frame = QRectF(0, 0, 512, 384), .available = QRectF(0, 14, 512, 370)}};
    item = {};
    controller->show();
    EXPECT_EQ(frame(), QRect(140, 22, 360, 354));
}

TEST_F(CommandCenterControllerTest, WhatIsDueIsKnownWhenItOpens) {
    world.idleSource.fix(0);
    for (int i = 0; i < 75; ++i)
        world.time.advance(Seconds(10)); // samples of a present user
    controller->show();
    EXPECT_EQ(controller->content().backfillChoices(), QList<int>({5, 10}));
}

TEST_F(CommandCenterControllerTest, CreditedTimeLandsInTheLog) {
    world.idleSource.fix(0);
    for (int i = 0; i < 75; ++i)
        world.time.advance(Seconds(10));
    controller->show();
    const Date now = world.time.now();
    controller->content().backfill(10);
    world.settle();
    ASSERT_EQ(world.model->tracker().state(), TrackerCore::State::Running);
    EXPECT_EQ(controller->content().primaryText(), QStringLiteral("Stop · 10 min"));
    controller->content().pressPrimary();
    world.settle();
    const auto log = world.log();
    ASSERT_EQ(log.size(), 1U);
    EXPECT_EQ(log[0].activeSeconds, 600);
    EXPECT_NEAR((now - log[0].startedAt).count(), 600.0, 1.0);
}

TEST_F(CommandCenterControllerTest, AWindowOpensAfterThePanelIsHidden) {
    bool shownAtOpening = true;
    router.add({.id = WindowId::Settings,
                .door = {QStringLiteral("Settings")},
                .content = {QUrl(), [&](const std::function<void()>&) {
                                shownAtOpening = controller->isShown();
                                return std::make_unique<QObject>();
                            }}});
    controller->show();
    ASSERT_EQ(controller->content().doors(), QStringList{QStringLiteral("Settings")});
    controller->content().openDoor(0);
    EXPECT_FALSE(shownAtOpening);
}

} // namespace
} // namespace vantle::tests
