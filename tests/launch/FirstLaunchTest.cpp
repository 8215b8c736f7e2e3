// The first launch, and what the welcome that it shows leads to.
#include "launch/AppDelegateWorld.h"
#include "support/QtPrinters.h"
#include "surfaces/welcome/WelcomeView.h"
#include "surfaces/window/WindowShell.h"
#include "tracking/Settings.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

class FirstLaunchTest : public testing::Test, protected AppDelegateWorld {
protected:
    FirstLaunchTest() { settings::welcomeDone.remove(preferences); }

    std::unique_ptr<AppDelegate> launch(bool atLogin = false) {
        auto app = makeCopy(atLogin);
        EXPECT_TRUE(app->applicationDidFinishLaunching());
        app->model()->showCommandCenter = [this] { ++panels; };
        time.settle();
        return app;
    }
    static bool showsWelcome(AppDelegate& app) { return app.router()->isOpen(WindowId::Welcome); }
    static WelcomeView& welcome(AppDelegate& app) {
        auto* const shell = static_cast<WindowShell*>(app.router()->window(WindowId::Welcome));
        return static_cast<WelcomeView&>(shell->model());
    }
    /// What was asked to be done in the next turn of the main loop.
    void turn() {
        QCoreApplication::processEvents();
        time.settle();
    }
    void beginPractice(AppDelegate& app) {
        welcome(app).pressPrimary();
        welcome(app).pressPrimary();
        app.performAction(text("toggle"));
        time.settle();
    }

    int panels = 0;
};

TEST_F(FirstLaunchTest, ShowsTheWelcomeAndNoPanel) {
    const auto app = launch();
    EXPECT_TRUE(showsWelcome(*app));
    EXPECT_EQ(panels, 0);
    EXPECT_TRUE(app->model()->needsWelcome());
}

TEST_F(FirstLaunchTest, ShowsItAtLoginAsWell) { EXPECT_TRUE(showsWelcome(*launch(true))); }

TEST_F(FirstLaunchTest, CallThatStartsTheProgramBringsTheWelcomeWithoutThePanel) {
    connectScreen();
    const auto app = makeCopy(true);
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.advance(1);
    app->applicationShouldHandleReopen();
    EXPECT_TRUE(showsWelcome(*app));
    EXPECT_FALSE(app->commandCenter()->isShown());
    app->applicationShouldHandleReopen();
    EXPECT_TRUE(app->commandCenter()->isShown());
}

TEST_F(FirstLaunchTest, CallHoursAfterAStartAtLoginBringsThePanel) {
    connectScreen();
    const auto app = makeCopy(true);
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.advance(3 * 3600);
    EXPECT_TRUE(showsWelcome(*app));
    app->router()->orderOut(WindowId::Welcome);
    app->applicationShouldHandleReopen();
    EXPECT_TRUE(app->commandCenter()->isShown());
    EXPECT_EQ(openWindows(*app), QStringList()) << "the welcome is left where it was";
}

TEST_F(FirstLaunchTest, AfterTheWelcomeAStartShowsThePanel) {
    auto app = launch();
    welcome(*app).finish();
    turn();
    EXPECT_FALSE(showsWelcome(*app));
    app.reset();
    app = launch();
    EXPECT_FALSE(showsWelcome(*app));
    EXPECT_EQ(panels, 1);
}

TEST_F(FirstLaunchTest, WindowThatIsClosedInThePracticeEndsItForGood) {
    const auto app = launch();
    beginPractice(*app);
    EXPECT_TRUE(welcome(*app).isPracticeRunning());
    app->router()->close(WindowId::Welcome);
    EXPECT_FALSE(app->model()->needsWelcome());
    EXPECT_EQ(app->model()->tracker().state(), TrackerCore::State::Idle);
    EXPECT_TRUE(log().empty());
    EXPECT_EQ(cardStage.up(CardView::StopSummary), nullptr);
}

TEST_F(FirstLaunchTest, ProgramThatEndsWithTheWelcomeOpenShowsItAgain) {
    auto app = launch();
    beginPractice(*app);
    app->performAction(text("quit"));
    app.reset();
    EXPECT_TRUE(log().empty());
    EXPECT_FALSE(settings::welcomeDone.read(preferences));
    EXPECT_TRUE(showsWelcome(*launch()));
}

TEST_F(FirstLaunchTest, WindowIsGoneForTheCeremonyAndBackAfterIt) {
    const auto app = launch();
    beginPractice(*app);
    QWindow* const window = app->router()->window(WindowId::Welcome);
    ASSERT_NE(window, nullptr) << "out of sight, not closed";
    EXPECT_FALSE(window->isVisible());
    time.advance(4);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(welcome(*app).step(), welcometext::Stop);
}

} // namespace
} // namespace vantle::tests
