// The panel on a real X server with a window manager.
#include "surfaces/panel/FloatingPanel.h"

#include "fakes/FakePanelHost.h"
#include "platform/ReservedStrips.h"
#include "platform/session/QtScreens.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11PanelHost.h"
#include "support/Await.h"
#include "support/Text.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <xcb/shape.h>

namespace vantle::tests {
namespace {

constexpr QRect kFrame(300, 200, 200, 100);
const ScreenShape kScreen{.frame = QRectF(0, 0, 1440, 900), .available = QRectF(0, 0, 1440, 900)};
constexpr QPoint kFar(1200, 800);

/// At kFrame, said from the corner of the screen.
Placement placement(std::optional<QRegion> felt = {}, const QRegion& opaque = {}) {
    return {.spot = Placement::Spot::TopRight,
            .screen = kScreen,
            .size = kFrame.size(),
            .inset = {1440 - 500, 200},
            .felt = std::move(felt),
            .opaque = opaque};
}

/// A panel of 200 by 100 with a text field in its upper half, above a window of some application.
class FloatingPanelTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(x11.isAlive());
        QFile file(folder.filePath(QStringLiteral("View.qml")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("import QtQuick\nimport Vantle.Panel\n"
                   "PanelRoot { groundRect: Qt.rect(16, 8, 200, 100)\n"
                   "implicitWidth: 232; implicitHeight: 132\n"
                   "TextInput { width: 200; height: 50 } }");
        file.close();
        engine.addImportPath(text("qrc:/qt/qml"));
        QCursor::setPos(kFar);
        below.setGeometry(250, 150, 400, 300);
        below.show();
        ASSERT_TRUE(await([&] { return focus() == below.winId(); }));
        ASSERT_TRUE(panel.load(QUrl::fromLocalFile(file.fileName()), {}));
    }

    void show(const Placement& place = placement()) {
        panel.showAt(place);
        ASSERT_TRUE(await([&] { return panel.isExposed(); }));
    }

    [[nodiscard]] WId focus() {
        const auto answer = x11.reply<xcb_get_input_focus_reply>(xcb_get_input_focus(x11.xcb()));
        return answer ? answer->focus : 0;
    }

    [[nodiscard]] QRegion regionOnServer() {
        const auto answer = x11.reply<xcb_shape_get_rectangles_reply>(xcb_shape_get_rectangles(
            x11.xcb(), static_cast<xcb_window_t>(panel.winId()), XCB_SHAPE_SK_INPUT));
        QRegion region;
        for (int i = 0; i < xcb_shape_get_rectangles_rectangles_length(answer.get()); ++i) {
            const auto& r = xcb_shape_get_rectangles_rectangles(answer.get())[i];
            region += QRect(r.x, r.y, r.width, r.height);
        }
        return region;
    }

    void click(QPoint place) {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, panel.mapToGlobal(place), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(&panel, &event);
        }
    }

    QTemporaryDir folder;
    X11Connection x11;
    QtScheduler scheduler;
    X11RawPresses presses{x11};
    X11PanelHost host{x11, scheduler, presses};
    QQmlEngine engine;
    QWindow below;
    FloatingPanel panel{engine, host};
};

TEST_F(FloatingPanelTest, ShowingItLeavesTheKeyboardWithTheWindowBelow) {
    show();
    EXPECT_EQ(focus(), below.winId());
    EXPECT_EQ(panel.geometry(), kFrame);
}

TEST_F(FloatingPanelTest, TheShadowOfTheViewLiesAroundThePlaceAndLetsClicksThrough) {
    show(panel.withShadow(placement()));
    EXPECT_TRUE(await([&] { return panel.geometry() == kFrame.adjusted(-16, -8, 16, 24); }));
    EXPECT_TRUE(await([&] { return regionOnServer() == QRegion(16, 8, 200, 100); }));
    EXPECT_EQ(panel.mask(), QRegion(16, 8, 200, 100)) << "there is no compositor";
}

TEST_F(FloatingPanelTest, NoWindowManagerKnowsIt) {
    show();
    const auto attributes = x11.reply<xcb_get_window_attributes_reply>(
        xcb_get_window_attributes(x11.xcb(), static_cast<xcb_window_t>(panel.winId())));
    ASSERT_TRUE(attributes);
    EXPECT_EQ(attributes->override_redirect, 1);
    EXPECT_EQ(panel.format().alphaBufferSize(), 8);
}

TEST_F(FloatingPanelTest, OnlyTheRegionFeelsThePointer) {
    show(placement(QRect(10, 10, 50, 20)));
    EXPECT_TRUE(await([&] { return regionOnServer() == QRegion(10, 10, 50, 20); }));
    Placement larger = placement();
    larger.size = QSize(220, 120);
    panel.setPlacement(larger);
    panel.setInputRegion(QRegion(0, 0, 30, 30) + QRegion(60, 0, 30, 30));
    EXPECT_TRUE(
        await([&] { return regionOnServer() == QRegion(0, 0, 30, 30) + QRegion(60, 0, 30, 30); }));
    panel.setInputRegion({});
    EXPECT_TRUE(await([&] { return regionOnServer().isEmpty(); }));
}

TEST_F(FloatingPanelTest, TheRegionGrowingUnderARestingPointerCountsAsEntering) {
    int entered = 0;
    int left = 0;
    QObject::connect(&panel, &FloatingPanel::pointerEntered, [&] { ++entered; });
    QObject::connect(&panel, &FloatingPanel::pointerLeft, [&] { ++left; });
    show(placement(QRect(0, 0, 20, 10)));
    QCursor::setPos(kFrame.topLeft() + QPoint(100, 50));
    EXPECT_FALSE(panel.pointerInside());
    panel.setInputRegion(QRect(0, 0, 150, 80));
    EXPECT_TRUE(await([&] { return entered == 1; }));
    EXPECT_TRUE(panel.pointerInside());
    panel.setInputRegion(QRect(0, 0, 20, 10));
    EXPECT_TRUE(await([&] { return left == 1; }));
    EXPECT_FALSE(panel.pointerInside());
}

TEST_F(FloatingPanelTest, AClickBesideTheTextFieldLeavesTheKeyboardWhereItIs) {
    show();
    click({20, 80});
    EXPECT_EQ(focus(), below.winId());
}

TEST_F(FloatingPanelTest, AClickIntoTheTextFieldTakesTheKeyboardAndItIsGivenBack) {
    show();
    click({20, 20});
    EXPECT_TRUE(await([&] { return focus() == panel.winId() && panel.isActive(); }));
    panel.returnKeyboard();
    EXPECT_TRUE(await([&] { return focus() == below.winId(); }));
}

TEST_F(FloatingPanelTest, HidingItGivesTheKeyboardBack) {
    show();
    panel.takeKeyboard();
    EXPECT_TRUE(await([&] { return focus() == panel.winId(); }));
    panel.hide();
    EXPECT_TRUE(await([&] { return focus() == below.winId(); }));
}

TEST_F(FloatingPanelTest, TheKeyboardGoesToTheWindowInFrontWhereItsOwnerIsGone) {
    QWindow other;
    other.setGeometry(700, 150, 200, 200);
    other.show();
    ASSERT_TRUE(await([&] { return focus() == other.winId(); }));
    show();
    panel.takeKeyboard();
    ASSERT_TRUE(await([&] { return focus() == panel.winId(); }));
    other.destroy();
    ASSERT_TRUE(await([&] { return focus() != 0; }));
    panel.returnKeyboard();
    EXPECT_TRUE(await([&] { return focus() != panel.winId(); }));
}

TEST_F(FloatingPanelTest, LosingTheKeyboardToAnotherWindowIsTold) {
    int lost = 0;
    QObject::connect(&panel, &FloatingPanel::keyboardLost, [&] { ++lost; });
    show();
    panel.takeKeyboard();
    ASSERT_TRUE(await([&] { return panel.isActive(); }));
    below.requestActivate();
    EXPECT_TRUE(await([&] { return lost == 1; }));
    panel.returnKeyboard(); // not its to give any more
    EXPECT_TRUE(await([&] { return focus() == below.winId(); }));
}

TEST_F(FloatingPanelTest, WithoutACompositorOnlyTheOpaquePartIsThere) {
    show(placement({}, QRect(0, 0, 120, 60)));
    EXPECT_FALSE(panel.isComposited());
    EXPECT_EQ(panel.mask(), QRegion(0, 0, 120, 60));
}

TEST_F(FloatingPanelTest, ACompositorThatComesAndGoesIsFollowed) {
    int told = 0;
    QObject::connect(&panel, &FloatingPanel::compositedChanged, [&] { ++told; });
    show(placement({}, QRect(0, 0, 120, 60)));
    QProcess compositor;
    compositor.start(text("picom"), {text("--config"), text("/dev/null"), text("--backend"),
                                     text("xrender"), text("--no-vsync")});
    ASSERT_TRUE(await([&] { return panel.isComposited(); }));
    EXPECT_TRUE(panel.mask().isEmpty());
    EXPECT_TRUE(panel.root()->isComposited());
    compositor.kill(); // as a crash does
    compositor.waitForFinished();
    ASSERT_TRUE(await([&] { return !panel.isComposited(); }));
    EXPECT_EQ(panel.mask(), QRegion(0, 0, 120, 60));
    EXPECT_FALSE(panel.root()->isComposited());
    EXPECT_EQ(told, 2);
}

/// On a desktop that knows no input regions.
class CutFloatingPanelTest : public FloatingPanelTest {
protected:
    void SetUp() override {
        FloatingPanelTest::SetUp();
        if (HasFatalFailure()) return;
        cutHost.inputRegions = false;
        ASSERT_TRUE(cut.load(panel.source(), {}));
    }
    fakes::FakePanelHost cutHost;
    FloatingPanel cut{engine, cutHost};
};

TEST_F(CutFloatingPanelTest, TheWindowIsAsLargeAsWhatFeelsThePointerAndNothingMovesInIt) {
    const QQuickItem* const view = cut.rootObject();
    cut.showAt(placement(QRect(10, 20, 50, 30)));
    ASSERT_TRUE(await([&] { return cut.isExposed(); }));
    EXPECT_EQ(cut.geometry(), QRect(310, 220, 50, 30));
    EXPECT_EQ(view->mapToGlobal(QPointF()), QPointF(kFrame.topLeft()));
    EXPECT_EQ(view->size(), QSizeF(kFrame.size()));
    cut.setInputRegion(QRegion(0, 0, 40, 40) + QRegion(60, 50, 30, 30));
    EXPECT_TRUE(await([&] { return cut.geometry() == QRect(300, 200, 90, 80); }));
    EXPECT_EQ(view->mapToGlobal(QPointF()), QPointF(kFrame.topLeft()));
    EXPECT_EQ(view->size(), QSizeF(kFrame.size()));
}

TEST_F(CutFloatingPanelTest, WhatFeelsNoPointerIsCutToWhatIsDrawn) {
    cut.showAt(placement(QRegion(), QRect(10, 20, 50, 30)));
    EXPECT_TRUE(await([&] { return cut.geometry() == QRect(310, 220, 50, 30); }));
}

TEST_F(CutFloatingPanelTest, OnlyEnteringAndLeavingAreBelievedWhereThePointerIsNotTold) {
    cutHost.pointerIsTold = false;
    QCursor::setPos(kFar);
    cut.showAt(placement(QRect(0, 0, 100, 50)));
    ASSERT_TRUE(await([&] { return cut.isExposed(); }));
    EXPECT_FALSE(cut.pointerInside());
    QCursor::setPos(kFrame.topLeft() + QPoint(50, 25));
    EXPECT_TRUE(await([&] { return cut.pointerInside(); }));
    QEvent leave(QEvent::Leave); // to a window that the server does not know
    QCoreApplication::sendEvent(&cut, &leave);
    EXPECT_FALSE(cut.pointerInside());
}

TEST_F(FloatingPanelTest, ASensorFeelsThePointerUntilItIsGone) {
    int entered = 0;
    auto sensor =
        host.senseAt({.screen = kScreen, .inset = {840, 0}}, {0, 0, 230, 10}, [&] { ++entered; });
    ASSERT_TRUE(sensor);
    QCursor::setPos(700, 400);
    QCursor::setPos(700, 5);
    EXPECT_TRUE(await([&] { return entered == 1; }));
    QCursor::setPos(700, 400);
    sensor.reset();
    QCursor::setPos(700, 5);
    x11.drain();
    QCoreApplication::processEvents();
    EXPECT_EQ(entered, 1);
}

TEST(QtScreens, TheMainScreenIsAPlainOne) {
    ReservedStrips none;
    const QtScreens screens(none);
    const auto shapes = screens.all();
    ASSERT_EQ(shapes.size(), 1U);
    EXPECT_EQ(shapes[0].frame, QRectF(0, 0, 1440, 900));
    EXPECT_EQ(shapes[0].safeAreaTop, 0.0);
    EXPECT_FALSE(shapes[0].auxiliaryTopLeft);
}

} // namespace
} // namespace vantle::tests
