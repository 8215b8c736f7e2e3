#include "surfaces/window/WindowRouter.h"

#include "fakes/FakePanelHost.h"
#include "fakes/FakeScreens.h"
#include "fakes/FakeWindowManager.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "surfaces/window/SharedEngine.h"
#include "tracking/NotificationCenter.h"

#include <QWindow>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

class WindowRouterTest : public testing::Test {
protected:
    void registerAll() {
        for (const auto id : {WindowId::Dashboard, WindowId::Wrapped, WindowId::Log,
                              WindowId::QuickLog, WindowId::Welcome, WindowId::Settings})
            router.registerWindow(
                id, {QUrl(QStringLiteral("qrc:/views/Fixed.qml")),
                     [](const std::function<void()>&) { return std::make_unique<QObject>(); }});
    }

    fakes::FakeScreens screens;
    fakes::FakePanelHost host;
    fakes::FakeWindowManager manager;
    fakes::MemoryPreferences preferences;
    SharedEngine engine;
    NotificationCenter notifications;
    fakes::VirtualTime time;
    WindowRouter router{{engine, preferences, screens, host, manager, time, {}}, notifications};
};

TEST_F(WindowRouterTest, AWindowThatNobodyRegisteredDoesNotOpen) {
    router.showSettings();
    EXPECT_FALSE(router.isOpen(WindowId::Settings));
}

TEST_F(WindowRouterTest, EachCommandOpensItsWindow) {
    registerAll();
    router.showLog();
    router.showQuickLog();
    router.showSettings();
    router.showWelcome();
    EXPECT_EQ(router.window(WindowId::Log)->title(), QStringLiteral("Your notes"));
    EXPECT_EQ(router.window(WindowId::QuickLog)->title(), QStringLiteral("Quick Log"));
    EXPECT_EQ(router.window(WindowId::Settings)->title(), QStringLiteral("Settings"));
    EXPECT_EQ(router.window(WindowId::Welcome)->title(), QStringLiteral("Welcome"));
}

TEST_F(WindowRouterTest, TheDashboardAndTheReviewAreNeverOpenTogether) {
    registerAll();
    router.showWrapped();
    EXPECT_EQ(router.window(WindowId::Wrapped)->title(), QStringLiteral("Wrapped"));
    router.showDashboard();
    EXPECT_FALSE(router.isOpen(WindowId::Wrapped));
    EXPECT_EQ(router.window(WindowId::Dashboard)->title(), QStringLiteral("Your hours"));
    router.showWrapped();
    EXPECT_FALSE(router.isOpen(WindowId::Dashboard));
}

TEST_F(WindowRouterTest, TheReviewKnowsThePeriodThatItWasAskedToOpenOn) {
    registerAll();
    router.showWrapped(WrappedPeriod::LastWeek);
    EXPECT_EQ(router.wrappedInitialPeriod(), WrappedPeriod::LastWeek);
    router.showWrapped();
    EXPECT_EQ(router.wrappedInitialPeriod(), std::nullopt);
}

TEST_F(WindowRouterTest, AWindowOutOfSightIsOpenStillAndComesBackAsItWas) {
    registerAll();
    router.showWelcome();
    QWindow* const window = router.window(WindowId::Welcome);
    router.orderOut(WindowId::Welcome);
    router.orderOut(WindowId::Log); // which is closed
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(router.isOpen(WindowId::Welcome));
    router.showWelcome();
    EXPECT_EQ(router.window(WindowId::Welcome), window);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(WindowRouterTest, TheWelcomeOpensWhenItIsAskedForAgain) {
    registerAll();
    Q_EMIT notifications.HFShowWelcome();
    EXPECT_TRUE(router.isOpen(WindowId::Welcome));
}

} // namespace
} // namespace vantle::tests
