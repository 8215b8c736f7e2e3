#include "surfaces/window/ManagedWindow.h"

#include "fakes/FakePanelHost.h"
#include "fakes/FakeScreens.h"
#include "fakes/FakeWindowManager.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "support/Await.h"
#include "surfaces/window/SharedEngine.h"

#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

constexpr int kStrip = 36;
constexpr Preference<QString> kFrame{"a.frame"};

class ManagedWindowTest : public testing::Test {
protected:
    ManagedWindowTest() {
        fixed.title = QStringLiteral("Fixed");
        filling.title = QStringLiteral("Filling");
        filling.resizable = true;
        filling.minContentWidth = 380;
        filling.contentSize = {612, 512};
        filling.frame = &kFrame;
    }

    WindowContent content(const char* view) {
        return {QUrl(QStringLiteral("qrc:/views/") + QLatin1String(view)),
                [this](std::function<void()> close) {
                    auto made = std::make_unique<QObject>();
                    if (tall) made->setObjectName(QStringLiteral("tall"));
                    model = made.get();
                    closeFromView = std::move(close);
                    return made;
                }};
    }

    static QSize contentSize(const ManagedWindow& window) {
        return window.window()->size() - QSize(0, kStrip);
    }

    /// Lets time pass once the window has heard of what was done to it.
    void pass(double seconds) {
        QCoreApplication::processEvents();
        time.advance(seconds);
    }
    [[nodiscard]] std::optional<QString> kept() const {
        return preferences.string(QStringLiteral("a.frame"));
    }

    /// What the event loop does once the present event is over.
    static void deleteWhatIsClosed() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    fakes::FakeScreens screens;
    fakes::FakePanelHost host;
    fakes::FakeWindowManager manager;
    fakes::MemoryPreferences preferences;
    fakes::VirtualTime time;
    SharedEngine engine{time};
    WindowRules fixed;
    WindowRules filling;
    bool tall = false;
    QPointer<QObject> model; ///< of the window that was opened last
    std::function<void()> closeFromView;
    WindowEnvironment environment{engine, preferences, screens, host, manager, time, {}};
};

TEST_F(ManagedWindowTest, AFixedWindowIsAsLargeAsItsViewAsksFor) {
    ManagedWindow window(environment, fixed, content("Fixed.qml"));
    ASSERT_TRUE(window.show());
    EXPECT_EQ(contentSize(window), QSize(200, 100));
    EXPECT_EQ(window.window()->maximumSize(), window.window()->minimumSize());
    EXPECT_EQ(window.window()->title(), QStringLiteral("Fixed"));
    // in the middle of the free area
    EXPECT_EQ(window.window()->geometry(), QRect(620, 396, 200, 136));
}

TEST_F(ManagedWindowTest, AResizableWindowHasItsSizeAndItsLeastSize) {
    ManagedWindow window(environment, filling, content("Filling.qml"));
    ASSERT_TRUE(window.show());
    EXPECT_EQ(contentSize(window), QSize(612, 512));
    EXPECT_EQ(window.window()->minimumSize(), QSize(380, 320 + kStrip));
}

TEST_F(ManagedWindowTest, ADesktopThatPlacesWindowsItselfGivesTheirSize) {
    manager.places = false;
    ManagedWindow window(environment, fixed, content("Fixed.qml"));
    ASSERT_TRUE(window.show());
    EXPECT_EQ(window.window()->geometry(), QRect(0, 0, 200, 136));
}

TEST_F(ManagedWindowTest, AClosedWindowLeavesNothingOfItsView) {
    ManagedWindow window(environment, fixed, content("Fixed.qml"));
    ASSERT_TRUE(window.show());
    const QPointer<QWindow> shell = window.window();
    window.close();
    EXPECT_FALSE(window.isOpen());
    deleteWhatIsClosed();
    EXPECT_TRUE(shell.isNull());
    EXPECT_TRUE(model.isNull());
    time.advance(SharedEngine::kept.count());
    EXPECT_FALSE(engine.isAlive());
}

TEST_F(ManagedWindowTest, WindowOpenedSoonAfterAnotherClosedFindsItsEngine) {
    ManagedWindow window(environment, fixed, content("Fixed.qml"));
    ASSERT_TRUE(window.show());
    const QPointer<QObject> before = engine.acquire().get();
    for (int round = 0; round < 3; ++round) {
        window.close();
        deleteWhatIsClosed();
        time.advance(SharedEngine::kept.count() - 1);
        ASSERT_TRUE(window.show());
        EXPECT_EQ(engine.acquire().get(), before);
    }
    time.advance(10 * SharedEngine::kept.count());
    EXPECT_FALSE(before.isNull()) << "the window has it";
}

TEST_F(ManagedWindowTest, AReopenedWindowHasAFreshViewTree) {
    ManagedWindow window(environment, fixed, content("Fixed.qml"));
    ASSERT_TRUE(window.show());
    const QPointer<QObject> first = model;
    window.close();
    ASSERT_TRUE(window.show());
    EXPECT_NE(model, first);
    deleteWhatIsClosed();
    EXPECT_TRUE(first.isNull());
    EXPECT_FALSE(model.isNull());
}

TEST_F(ManagedWindowTest, ASecondShowBringsTheSameWindowForward) {
    ManagedWindow window(environment, fixed, content("Fixed.qml"));
    ASSERT_TRUE(window.show());
    QWindow* const shell = window.window();
    ASSERT_TRUE(window.show());
    EXPECT_EQ(window.window(), shell);
}

TEST_F(ManagedWindowTest, TheFrameIsRestoredUnderItsName) {
    ManagedWindow window(environment, filling, content("Filling.qml"));
    ASSERT_TRUE(window.show());
    window.window()->setGeometry(100, 120, 700, 600);
    window.close();
    EXPECT_EQ(preferences.string(QStringLiteral("a.frame")), QStringLiteral("100 120 700 600"));
    ASSERT_TRUE(window.show());
    EXPECT_EQ(window.window()->geometry(), QRect(100, 120, 700, 600));
}

TEST_F(ManagedWindowTest, FrameIsKeptASecondAfterTheLastMove) {
    ManagedWindow window(environment, filling, content("Filling.qml"));
    ASSERT_TRUE(window.show());
    window.window()->setPosition(100, 120);
    pass(0.9);
    window.window()->setGeometry(110, 130, 700, 600);
    pass(0.9);
    EXPECT_EQ(kept(), std::nullopt);
    pass(0.2);
    EXPECT_EQ(kept(), QStringLiteral("110 130 700 600"));
}

TEST_F(ManagedWindowTest, KeptFrameIsNotWrittenAgainAtClosing) {
    ManagedWindow window(environment, filling, content("Filling.qml"));
    ASSERT_TRUE(window.show());
    window.window()->setGeometry(110, 130, 700, 600);
    pass(1.1);
    preferences.remove(QStringLiteral("a.frame")); // all data is erased
    window.close();
    EXPECT_EQ(kept(), std::nullopt);
}

TEST_F(ManagedWindowTest, FrameOfAMaximisedWindowIsKept) {
    ManagedWindow window(environment, filling, content("Filling.qml"));
    ASSERT_TRUE(window.show());
    window.window()->showMaximized();
    ASSERT_TRUE(await([&] { return window.window()->width() == 800; })); // the screen's
    const QRect frame = window.window()->geometry();
    pass(1.1);
    EXPECT_EQ(kept(), QStringLiteral("%1 %2 800 800").arg(frame.x()).arg(frame.y()));
}

TEST_F(ManagedWindowTest, CornersAreRoundWhileThereIsACompositor) {
    ManagedWindow window(environment, fixed, content("Fixed.qml"));
    ASSERT_TRUE(window.show());
    auto* const shown = static_cast<QQuickWindow*>(window.window());
    shown->setColor(Qt::green); // what lies below
    const auto seesBelow = [&] { return shown->grabWindow().pixelColor(0, 0).green() > 200; };
    EXPECT_TRUE(seesBelow());
    host.setComposited(false);
    EXPECT_FALSE(seesBelow());
    host.setComposited(true);
    EXPECT_TRUE(seesBelow());
}

TEST_F(ManagedWindowTest, AFrameOnAScreenThatIsGoneIsForgotten) {
    preferences.setString(QStringLiteral("a.frame"), QStringLiteral("2000 120 700 600"));
    ManagedWindow window(environment, filling, content("Filling.qml"));
    ASSERT_TRUE(window.show());
    EXPECT_EQ(window.window()->geometry(), QRect(414, 190, 612, 548));
}

TEST_F(ManagedWindowTest, AWindowThatWasNotMovedKeepsNothing) {
    ManagedWindow window(environment, filling, content("Filling.qml"));
    ASSERT_TRUE(window.show());
    window.close();
    EXPECT_EQ(preferences.string(QStringLiteral("a.frame")), std::nullopt);
}

TEST_F(ManagedWindowTest, AWindowWithoutANameKeepsNoFrame) {
    int writes = 0;
    QObject::connect(&preferences, &Preferences::changed, [&] { ++writes; });
    ManagedWindow window(environment, fixed, content("Fixed.qml"));
    ASSERT_TRUE(window.show());
    window.window()->setPosition(10, 40);
    window.close();
    EXPECT_EQ(writes, 0);
}

TEST_F(ManagedWindowTest, OnALowScreenAFixedWindowShrinksAndScrollsItsView) {
    tall = true;
    ManagedWindow window(environment, fixed, content("Fixed.qml"));
    ASSERT_TRUE(window.show());
    EXPECT_EQ(window.window()->height(), 872);
    auto* const field = window.window()->findChild<QQuickItem*>(QStringLiteral("field"));
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->parentItem()->height(), 2000);
}

TEST_F(ManagedWindowTest, AWindowFollowsAViewThatGrows) {
    ManagedWindow window(environment, fixed, content("Fixed.qml"));
    ASSERT_TRUE(window.show());
    auto* const field = window.window()->findChild<QQuickItem*>(QStringLiteral("field"));
    field->parentItem()->setImplicitHeight(132);
    EXPECT_EQ(contentSize(window), QSize(200, 132));
}

TEST_F(ManagedWindowTest, AViewMayCloseItsWindowFromItsOwnHandler) {
    ManagedWindow window(environment, fixed, content("Fixed.qml"));
    ASSERT_TRUE(window.show());
    closeFromView();
    EXPECT_TRUE(window.isOpen());
    EXPECT_TRUE(await([&] { return !window.isOpen(); }));
}

TEST_F(ManagedWindowTest, TheDesktopMayCloseTheWindow) {
    ManagedWindow window(environment, fixed, content("Fixed.qml"));
    ASSERT_TRUE(window.show());
    window.window()->close();
    EXPECT_TRUE(await([&] { return !window.isOpen(); }));
}

TEST_F(ManagedWindowTest, AViewThatIsNoGoodOpensNothing) {
    ManagedWindow window(environment, fixed, content("Missing.qml"));
    EXPECT_FALSE(window.show());
    EXPECT_FALSE(window.isOpen());
}

TEST_F(ManagedWindowTest, WindowsShareOneEngine) {
    ManagedWindow one(environment, fixed, content("Fixed.qml"));
    ManagedWindow other(environment, filling, content("Filling.qml"));
    ASSERT_TRUE(one.show());
    const QQmlEngine* const shared = engine.acquire().get();
    ASSERT_TRUE(other.show());
    EXPECT_EQ(engine.acquire().get(), shared);
}

TEST_F(ManagedWindowTest, WhoCaresIsToldOfTheCloseWithTheModelAndNotOfTheEndOfTheProgram) {
    WindowContent told = content("Fixed.qml");
    std::vector<QObject*> closing;
    told.willClose = [&](QObject& viewModel) { closing.push_back(&viewModel); };
    {
        ManagedWindow window(environment, fixed, told);
        ASSERT_TRUE(window.show());
        window.close();
        window.close();
        EXPECT_EQ(closing, std::vector<QObject*>{model.data()});
        deleteWhatIsClosed();
        ASSERT_TRUE(window.show());
    }
    EXPECT_EQ(closing.size(), 1U);
}

} // namespace
} // namespace vantle::tests
