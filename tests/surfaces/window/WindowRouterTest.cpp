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
    void add(WindowId id, const char* title, const char* action = "", const char* door = "",
             std::optional<WindowId> replaces = {}) {
        router.add({.id = id,
                    .action = QLatin1String(action),
                    .door = {QLatin1String(door)},
                    .replaces = replaces,
                    .rules = {.title = QLatin1String(title)},
                    .content = {QUrl(QStringLiteral("qrc:/views/Fixed.qml")),
                                [](const auto&) { return std::make_unique<QObject>(); }}});
    }
    void addAll() {
        // In another order than that of the ids, on which nothing depends.
        add(WindowId::Welcome, "Welcome");
        add(WindowId::Log, "Notes", "notes", "Your notes");
        add(WindowId::Wrapped, "Wrapped", "wrapped", "", WindowId::Dashboard);
        add(WindowId::Dashboard, "Hours", "dashboard", "Your hours", WindowId::Wrapped);
    }
    [[nodiscard]] QString titleOf(WindowId id) const {
        const QWindow* const window = router.window(id);
        return window ? window->title() : QString();
    }

    fakes::FakeScreens screens;
    fakes::FakePanelHost host;
    fakes::FakeWindowManager manager;
    fakes::MemoryPreferences preferences;
    fakes::VirtualTime time;
    SharedEngine engine{time};
    NotificationCenter notifications;
    WindowRouter router{{engine, preferences, screens, host, manager, time, {}}, notifications};
};

TEST_F(WindowRouterTest, AWindowThatWasNotAddedDoesNotOpen) {
    router.show(WindowId::Settings);
    EXPECT_FALSE(router.isOpen(WindowId::Settings));
}

TEST_F(WindowRouterTest, EachWindowHasTheRulesOfItsOwnEntry) {
    addAll();
    router.show(WindowId::Log);
    router.show(WindowId::Welcome);
    EXPECT_EQ(titleOf(WindowId::Log), QStringLiteral("Notes"));
    EXPECT_EQ(titleOf(WindowId::Welcome), QStringLiteral("Welcome"));
}

TEST_F(WindowRouterTest, ActionsOnTheBusOpenTheirWindowsAlone) {
    addAll();
    for (const char* none : {"", "welcome", "Notes", "no-such-window"}) {
        router.showByAction(QLatin1String(none));
        EXPECT_FALSE(router.isOpen(WindowId::Welcome)) << none;
        EXPECT_FALSE(router.isOpen(WindowId::Log)) << none;
    }
    router.showByAction(QStringLiteral("notes"));
    EXPECT_TRUE(router.isOpen(WindowId::Log));
}

TEST_F(WindowRouterTest, DoorsAreThoseOfTheWindowsThatHaveOneInTheirOrder) {
    addAll();
    QStringList titles;
    for (const WindowSpec* const spec : router.doors())
        titles << spec->door.title;
    EXPECT_EQ(titles, QStringList({QStringLiteral("Your notes"), QStringLiteral("Your hours")}));
}

TEST_F(WindowRouterTest, WindowThatReplacesAnotherClosesIt) {
    addAll();
    router.show(WindowId::Wrapped);
    EXPECT_TRUE(router.isOpen(WindowId::Wrapped));
    router.show(WindowId::Dashboard);
    EXPECT_FALSE(router.isOpen(WindowId::Wrapped));
    EXPECT_TRUE(router.isOpen(WindowId::Dashboard));
    router.showWrapped(WrappedPeriod::LastWeek);
    EXPECT_FALSE(router.isOpen(WindowId::Dashboard));
}

TEST_F(WindowRouterTest, TheReviewKnowsThePeriodThatItWasAskedToOpenOn) {
    addAll();
    router.showWrapped(WrappedPeriod::LastWeek);
    EXPECT_EQ(router.wrappedInitialPeriod(), WrappedPeriod::LastWeek);
    router.show(WindowId::Wrapped);
    EXPECT_EQ(router.wrappedInitialPeriod(), std::nullopt);
}

TEST_F(WindowRouterTest, AWindowOutOfSightIsOpenStillAndComesBackAsItWas) {
    addAll();
    router.show(WindowId::Welcome);
    QWindow* const window = router.window(WindowId::Welcome);
    router.orderOut(WindowId::Welcome);
    router.orderOut(WindowId::Log); // which is closed
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(router.isOpen(WindowId::Welcome));
    router.show(WindowId::Welcome);
    EXPECT_EQ(router.window(WindowId::Welcome), window);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(WindowRouterTest, TheWelcomeOpensWhenItIsAskedForAgain) {
    addAll();
    Q_EMIT notifications.HFShowWelcome();
    EXPECT_TRUE(router.isOpen(WindowId::Welcome));
}

} // namespace
} // namespace vantle::tests
