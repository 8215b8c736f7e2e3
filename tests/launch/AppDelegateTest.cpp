#include "launch/AppDelegateWorld.h"
#include "support/QtPrinters.h"
#include "surfaces/cards/StopSummaryModel.h"
#include "surfaces/panel/FloatingPanel.h"

#include <gtest/gtest.h>

#include <random>

namespace vantle::tests {
namespace {

using State = TrackerCore::State;

class AppDelegateTest : public testing::Test, protected AppDelegateWorld {};

TEST_F(AppDelegateTest, ASecondCopyShowsOnlyTheAlertAndLeavesTheSessionOfTheFirst) {
    const auto first = makeCopy();
    ASSERT_TRUE(first->applicationDidFinishLaunching());
    time.settle();
    first->performAction(text("toggle"));
    time.settle();
    preferences.remove(text("login.autoRegistered"));

    const auto second = makeCopy();
    EXPECT_FALSE(second->applicationDidFinishLaunching());
    EXPECT_EQ(alerts, 1);
    EXPECT_EQ(second->model(), nullptr);
    EXPECT_EQ(preferences.boolean(text("login.autoRegistered")), std::nullopt);
    EXPECT_EQ(first->model()->tracker().state(), State::Running);
    EXPECT_TRUE(exists("open-session.json"));
    second->applicationWillTerminate();
    EXPECT_TRUE(log().empty());
}

TEST_F(AppDelegateTest, SecondCopyEndsSilentlyWhenTheFirstShowsItself) {
    const auto first = makeCopy();
    ASSERT_TRUE(first->applicationDidFinishLaunching());
    runningCopy.answers = true;
    EXPECT_FALSE(makeCopy()->applicationDidFinishLaunching());
    EXPECT_EQ(alerts, 0);
    EXPECT_EQ(runningCopy.calls, 1);

    EXPECT_FALSE(makeCopy(true)->applicationDidFinishLaunching()) << "nobody asked for the panel";
    EXPECT_EQ(runningCopy.calls, 1);
}

TEST_F(AppDelegateTest, TheLockIsFreeAgainAfterTheFirstCopyHasGone) {
    auto first = makeCopy();
    ASSERT_TRUE(first->applicationDidFinishLaunching());
    first.reset();
    EXPECT_TRUE(makeCopy()->applicationDidFinishLaunching());
    EXPECT_TRUE(exists(".instance.lock"));
}

TEST_F(AppDelegateTest, ABrokenDataDirectoryDoesNotPreventTheStart) {
    disk.setContent(text("/data"), "a file where a directory should be");
    const auto app = makeCopy();
    EXPECT_TRUE(app->applicationDidFinishLaunching());
    time.settle();
    app->performAction(text("toggle"));
    time.settle();
    EXPECT_EQ(app->model()->tracker().state(), State::Running);
    EXPECT_TRUE(app->model()->tracker().storageError());
    EXPECT_TRUE(trayItem.toolTip.contains(text("Couldn’t save your hours.")));
}

TEST_F(AppDelegateTest, TheProgramRegistersItselfAtLoginOnce) {
    EXPECT_TRUE(makeCopy()->applicationDidFinishLaunching());
    EXPECT_TRUE(autostart.registered);
    autostart.registered = false; // the user turns it off
    EXPECT_TRUE(makeCopy()->applicationDidFinishLaunching());
    EXPECT_FALSE(autostart.registered);
    EXPECT_EQ(autostart.attempts, 1);
}

TEST_F(AppDelegateTest, AFailedLoginRegistrationIsNotTriedAgain) {
    autostart.refuses = true;
    EXPECT_TRUE(makeCopy()->applicationDidFinishLaunching());
    EXPECT_TRUE(makeCopy()->applicationDidFinishLaunching());
    EXPECT_EQ(autostart.attempts, 1);
}

TEST_F(AppDelegateTest, AnItemThatIsRegisteredAlreadyIsLeftAlone) {
    autostart.registered = true;
    EXPECT_TRUE(makeCopy()->applicationDidFinishLaunching());
    EXPECT_EQ(autostart.attempts, 0);
}

TEST_F(AppDelegateTest, StartByHandShowsThePanelAndACallShowsItAgain) {
    connectScreen();
    const auto app = makeCopy();
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.settle();
    EXPECT_TRUE(app->commandCenter()->isShown());
    app->commandCenter()->hide();
    app->applicationShouldHandleReopen();
    EXPECT_TRUE(app->commandCenter()->isShown());
}

TEST_F(AppDelegateTest, StartAtLoginShowsNothingButTheCapsule) {
    connectScreen();
    const auto app = makeCopy(true);
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.settle();
    EXPECT_FALSE(app->commandCenter()->isShown());
    EXPECT_EQ(openWindows(*app), QStringList());
    EXPECT_EQ(capsule, text("idle building"));
    app->applicationShouldHandleReopen();
    EXPECT_TRUE(app->commandCenter()->isShown());
}

TEST_F(AppDelegateTest, MenuOfTheTrayItemOpensStartsStopsAndQuits) {
    connectScreen();
    const auto app = makeCopy(true);
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.settle();
    ASSERT_TRUE(trayItem.choose(text("Open")));
    EXPECT_TRUE(app->commandCenter()->isShown());
    ASSERT_TRUE(trayItem.choose(text("Start")));
    time.settle();
    EXPECT_EQ(app->model()->tracker().state(), State::Running);
    ASSERT_TRUE(trayItem.choose(text("Stop")));
    time.settle();
    EXPECT_EQ(app->model()->tracker().state(), State::Idle);
    ASSERT_TRUE(trayItem.choose(text("Quit")));
    EXPECT_EQ(terminations, 1);
}

TEST_F(AppDelegateTest, NoticeThatFoundNoScreenComesWithTheFirstOne) {
    leaveKilledSession();
    cardStage.screen.reset();
    const auto app = makeCopy(true);
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.settle();
    EXPECT_EQ(cardStage.up(CardView::RecoveryNotice), nullptr);
    cardStage.screen = QRect(0, 28, 1440, 872);
    connectScreen();
    EXPECT_NE(cardStage.up(CardView::RecoveryNotice), nullptr);
}

TEST_F(AppDelegateTest, FirstPanelWaitsUntilTheTrayHasPlacedTheItem) {
    screens.shapes = fakes::FakeScreens().shapes;
    trayItem.placePending = true;
    const auto app = makeCopy();
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.advance(0.4);
    EXPECT_FALSE(app->commandCenter()->isShown());
    trayItem.moveTo(QRect(1000, 0, 24, 24));
    ASSERT_TRUE(app->commandCenter()->isShown());
    const FloatingPanel* const panel = app->commandCenter()->panel();
    const QRect frame = panel->inputRegion().boundingRect().translated(panel->position());
    EXPECT_EQ(frame.center().x(), 1011);
    app->commandCenter()->hide();
    time.advance(1);
    EXPECT_FALSE(app->commandCenter()->isShown()) << "it opens once";
}

TEST_F(AppDelegateTest, FirstPanelOpensInTheCornerWhereNoTrayPlacesTheItem) {
    screens.shapes = fakes::FakeScreens().shapes;
    trayItem.placePending = true;
    const auto app = makeCopy();
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.advance(0.6);
    ASSERT_TRUE(app->commandCenter()->isShown());
    const FloatingPanel* const panel = app->commandCenter()->panel();
    const QRect frame = panel->inputRegion().boundingRect().translated(panel->position());
    EXPECT_EQ(frame.topRight(), QPoint(1440 - 12 - 1, 28 + 8));
}

TEST_F(AppDelegateTest, ANoteTypedIntoTheCardAfterASessionLandsInTheLog) {
    const auto app = makeCopy(true);
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.settle();
    app->performAction(text("toggle"));
    time.advance(2400);
    app->performAction(text("toggle"));
    auto* const card = cardStage.modelOf<StopSummaryModel>(CardView::StopSummary);
    ASSERT_NE(card, nullptr);
    EXPECT_EQ(log().back().note, QString());
    (void)card->takeNote(text(" Retries land in order "));
    card->submit();
    time.settle();
    EXPECT_EQ(log().back().note, text("Retries land in order"));
}

TEST_F(AppDelegateTest, AClickOnTheTrayItemHidesThePanelOfAStartByHandAndAnotherShowsIt) {
    connectScreen();
    const auto app = makeCopy();
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.settle();
    EXPECT_TRUE(app->commandCenter()->isShown());
    Q_EMIT trayItem.clicked({1000, 14});
    EXPECT_FALSE(app->commandCenter()->isShown());
    Q_EMIT trayItem.clicked({1000, 14});
    EXPECT_TRUE(app->commandCenter()->isShown());
}

TEST_F(AppDelegateTest, EachWindowOpensByItsNameAndByNoOther) {
    const auto app = makeCopy(true);
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    for (const char* name : {"no-such-window", "welcome", "Dashboard", ""}) {
        app->performAction(text(name));
        EXPECT_EQ(openWindows(*app), QStringList()) << name;
    }
    struct Named {
        const char* name;
        WindowId id;
        const char* title;
    };
    for (const auto& [name, id, title] : {Named{"dashboard", WindowId::Dashboard, "Your hours"},
                                          Named{"wrapped", WindowId::Wrapped, "Wrapped"},
                                          Named{"notes", WindowId::Log, "Your notes"},
                                          Named{"quick-log", WindowId::QuickLog, "Quick Log"},
                                          Named{"settings", WindowId::Settings, "Settings"}}) {
        app->performAction(text(name));
        EXPECT_EQ(openWindows(*app), QStringList{text(title)}) << name;
        app->router()->close(id);
        EXPECT_EQ(openWindows(*app), QStringList()) << name;
    }
}

TEST_F(AppDelegateTest, CommandCenterLeadsToFourWindowsInTheirOrder) {
    const auto app = makeCopy(true);
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    CommandCenterModel& panel = app->commandCenter()->content();
    EXPECT_EQ(panel.doors(),
              QStringList({text("Dashboard"), text("Wrapped"), text("Notes"), text("Settings")}));
    QStringList keys;
    for (int door = 0; door < panel.doors().size(); ++door)
        keys << panel.doorKey(door);
    EXPECT_EQ(keys, QStringList({text("D"), QString(), QString(), text(",")}));
    panel.openDoor(2);
    EXPECT_EQ(openWindows(*app), QStringList{text("Your notes")});
}

TEST_F(AppDelegateTest, DataFilesBecomePrivateAtLaunchAndTheRetiredOneGoes) {
    disk.setDirectory(text("/data/Vantle"), 0755);
    disk.setContent(text("/data/Vantle/sessions.jsonl"), QByteArray(), 0644);
    disk.setContent(text("/data/Vantle/sync-queue.json"), "[1]", 0644);
    const auto app = makeCopy();
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    EXPECT_EQ(disk.mode(text("/data/Vantle")).value(), 0700);
    EXPECT_EQ(disk.mode(text("/data/Vantle/sessions.jsonl")).value(), 0600);
    EXPECT_FALSE(exists("sync-queue.json"));
}

TEST_F(AppDelegateTest, TheTrayTellsWhatTheSurfacesWould) {
    const auto app = makeCopy();
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.settle();
    EXPECT_EQ(trayItem.toolTip, text("Vantle"));
    app->model()->quickLog(text("building"), 5, QString());
    EXPECT_EQ(trayItem.toolTip, text("Vantle\nLogged 5 min manually (stays on this Mac)"));
}

TEST_F(AppDelegateTest, AShortcutHeldByAnotherApplicationIsTold) {
    hotKeyPort.outcome = {HotKeyPort::Registration::HeldByAnother, 0};
    const auto app = makeCopy();
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.settle();
    EXPECT_EQ(trayItem.toolTip, text("Vantle\n⌥⌘B is already used by another app."));
}

TEST_F(AppDelegateTest, AnOfferedSessionIsKeptOrDiscardedByAction) {
    for (const char* action : {"keep", "discard"}) {
        leaveKilledSession();
        const auto app = makeCopy();
        ASSERT_TRUE(app->applicationDidFinishLaunching());
        time.settle();
        EXPECT_EQ(trayItem.toolTip,
                  text("Vantle\nFound 2 min from the previous run · choose Keep or Discard"));
        const auto before = log().size();
        app->performAction(text(action));
        app->performAction(text(action));
        EXPECT_EQ(log().size(), before + (QByteArray(action) == "keep" ? 1u : 0u));
        EXPECT_FALSE(exists("open-session.json"));
    }
}

TEST_F(AppDelegateTest, EndingInASessionLogsItOnce) {
    const auto app = makeCopy();
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.settle();
    app->performAction(text("toggle"));
    time.advance(5.0);
    app->performAction(text("quit"));
    app->applicationWillTerminate();
    EXPECT_EQ(log().size(), 1u);
    EXPECT_FALSE(exists("open-session.json"));
    EXPECT_EQ(terminations, 1);
}

TEST_F(AppDelegateTest, AProgramThatIsBeingMovedDoesNothingElse) {
    movesAway = true;
    const auto app = makeCopy();
    EXPECT_FALSE(app->applicationDidFinishLaunching());
    EXPECT_EQ(app->model(), nullptr);
    EXPECT_EQ(alerts, 0);
    EXPECT_FALSE(exists(".instance.lock"));
}

TEST_F(AppDelegateTest, WorkInAnotherKnownApplicationSplitsTheSession) {
    const auto app = makeCopy();
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.settle();
    app->performAction(text("toggle"));
    idleSource.fix(0);
    time.advance(100.0);
    frontmostApp.activate(Application{text("com.figma.Desktop"), text("Figma")});
    time.advance(44.0);
    EXPECT_TRUE(log().empty());
    time.advance(2.0);
    ASSERT_EQ(log().size(), 1u);
    EXPECT_EQ(log().front().skillId, text("building"));
    EXPECT_EQ(app->model()->tracker().currentSkillId(), text("product_design"));
    EXPECT_EQ(log().front().endedAt, app->model()->tracker().startedAt());
}

TEST_F(AppDelegateTest, HoweverAutoModeSplitsASessionNoSecondIsLost) {
    const std::vector<Application> applications = {
        {text("com.figma.Desktop"), text("Figma")},
        {text("com.apple.dt.Xcode"), text("Xcode")},
        {text("com.tinyspeck.slackmacgap"), text("Slack")},
        {text("org.example.Unknown"), text("Unknown")}};
    std::mt19937 random(20260301);
    const auto pick = [&](int count) {
        return std::uniform_int_distribution(0, count - 1)(random);
    };
    const auto app = makeCopy();
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    time.settle();
    idleSource.fix(0);
    std::size_t splits = 0;
    for (int life = 0; life < 40; ++life) {
        const auto before = log().size();
        app->performAction(text("toggle"));
        double elapsed = 0;
        for (int step = 0; step < 30; ++step) {
            if (pick(4) == 0) preferences.setBoolean(text("auto.enabled"), pick(4) != 0);
            frontmostApp.activate(applications[static_cast<std::size_t>(pick(4))]);
            const double stay = 1 + pick(90);
            time.advance(stay);
            elapsed += stay;
        }
        app->performAction(text("toggle"));
        const auto sessions = log();
        std::int64_t counted = 0;
        for (std::size_t i = before; i < sessions.size(); ++i) {
            counted += sessions[i].activeSeconds;
            if (i > before) {
                EXPECT_EQ(sessions[i].startedAt, sessions[i - 1].endedAt);
                EXPECT_NE(sessions[i].skillId, sessions[i - 1].skillId);
            }
        }
        EXPECT_EQ(static_cast<double>(counted), elapsed) << "life " << life;
        splits += sessions.size() - before - 1;
    }
    EXPECT_GT(splits, 40u); // or nothing was tried
}

TEST_F(AppDelegateTest, TheUsersShortcutsRunAtBothEndsOfASession) {
    preferences.setBoolean(text("focus.linked"), true);
    preferences.setString(text("focus.shortcut.start"), text("quiet please"));
    preferences.setString(text("focus.shortcut.stop"), text("all clear"));
    const auto app = makeCopy();
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    app->performAction(text("toggle"));
    app->performAction(text("toggle"));
    const QString tool = text("/bin/vantle-shortcuts");
    EXPECT_EQ(processRunner.detached,
              (std::vector<Command>{{tool, {text("run"), text("quiet please")}},
                                    {tool, {text("run"), text("all clear")}}}));
}

TEST_F(AppDelegateTest, HeldKeyThatRunsTheCommandOverAndOverCountsOnce) {
    const auto app = makeCopy();
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    for (const State next : {State::Running, State::Idle}) {
        time.advance(1.1);
        app->performAction(text("toggle-by-key"));
        time.advance(0.6); // as long as desktops wait before the first repeat
        for (int repeat = 0; repeat < 60; ++repeat, time.advance(0.03))
            app->performAction(text("toggle-by-key"));
        EXPECT_EQ(app->model()->tracker().state(), next);
    }
    EXPECT_EQ(log().size(), 1u);
}

TEST_F(AppDelegateTest, UnknownActionsDoNothing) {
    const auto app = makeCopy();
    app->performAction(text("toggle")); // before the launch
    ASSERT_TRUE(app->applicationDidFinishLaunching());
    app->performAction(text("explode"));
    EXPECT_EQ(app->model()->tracker().state(), State::Idle);
}

} // namespace
} // namespace vantle::tests
