#include "support/Text.h"
#include "surfaces/settings/SettingsWorld.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::text;

class DesktopGapsTest : public testing::Test, protected tests::SettingsWorld {};

TEST_F(DesktopGapsTest, CompleteDesktopHasNoAdvice) {
    const SettingsView& settings = open();
    EXPECT_EQ(view->gaps()->hotKeyAdvice(), QString());
    EXPECT_EQ(view->gaps()->hotKeyAction(), QString());
    EXPECT_EQ(view->gaps()->trayAdvice(), QString());
    EXPECT_EQ(view->gaps()->idleAdvice(), QString());
    EXPECT_EQ(view->gaps()->autoModeAdvice(), QString());
    EXPECT_EQ(view->gaps()->autoStartAdvice(), QString());
    EXPECT_EQ(view->gaps()->ceremonyAdvice(), QString());
    EXPECT_EQ(settings.hotKeyText(), text("⌥⌘B · active"));
}

TEST_F(DesktopGapsTest, AdviceSaysThatNoCeremonyPlaysWhereItWouldTakeClicks) {
    overlayStage.available = false;
    open();
    EXPECT_TRUE(view->gaps()->ceremonyAdvice().startsWith(text("In this Wayland session")));
}

TEST_F(DesktopGapsTest, AnEmptyReadingIsNoGapWhereTheDesktopCanTell) {
    idleSource.becomeUnknown();
    frontmost.activate(std::nullopt);
    open();
    EXPECT_EQ(row("Auto-pause").caption(),
              text("No input for 3 minutes pauses the clock, backdated to your last keystroke or "
                   "click so away time is never counted. Default is 3."));
    EXPECT_EQ(view->gaps()->autoModeAdvice(), QString());
}

TEST_F(DesktopGapsTest, WithoutAnIdleCounterNoPauseIsPromised) {
    idleSource.setCanTell(false);
    open();
    EXPECT_EQ(row("Auto-pause").caption(),
              text("This desktop doesn't tell apps when you last used keyboard or mouse, so Vantle "
                   "can't pause by that. Stop the session when you step away."));
    EXPECT_EQ(view->gaps()->autoStartAdvice(),
              text("This desktop doesn't tell apps when you last used keyboard or mouse, so Vantle "
                   "can't know that you are there: it starts nothing on its own, and asks about no "
                   "app."));
    EXPECT_EQ(view->gaps()->autoModeAdvice(), QString());
    int times = 0;
    QObject::connect(&row("Auto-pause"), &PreferenceRowModel::changed, [&] { ++times; });
    idleSource.setCanTell(true);
    EXPECT_GT(times, 0);
    EXPECT_TRUE(row("Auto-pause").caption().startsWith(text("No input for 3 minutes")));
    EXPECT_EQ(view->gaps()->autoStartAdvice(), QString());
}

TEST_F(DesktopGapsTest, ADesktopThatTellsOfNoCallIsNamedOnceTheSwitchIsOn) {
    idleInhibition.setCanTell(false);
    open();
    EXPECT_EQ(view->gaps()->callsAdvice(), QString());
    int times = 0;
    QObject::connect(&row("Calls and videos"), &PreferenceRowModel::changed, [&] { ++times; });
    idleInhibition.setFollowed(true);
    EXPECT_GT(times, 0);
    EXPECT_EQ(view->gaps()->callsAdvice(),
              text("This desktop doesn't tell apps most of what keeps the screen awake, so calls "
                   "and videos may count as being away all the same."));
    idleSource.showInhibitor(false);
    EXPECT_EQ(view->gaps()->callsAdvice(), QString()) << "the compositor shows it";
}

TEST_F(DesktopGapsTest, AdviceSaysWhichApplicationsAutoModeMisses) {
    frontmost.setCoverage(AppCoverage::None);
    open();
    EXPECT_EQ(view->gaps()->autoModeAdvice(),
              text("This desktop doesn't tell Vantle which app is in front, so Auto mode has "
                   "nothing to go by. Choose the category by hand."));
    EXPECT_EQ(view->gaps()->autoStartAdvice(),
              text("This desktop doesn't tell Vantle which app is in front, so nothing starts on "
                   "its own."));
    int times = 0;
    QObject::connect(view->gaps(), &DesktopGaps::autoModeChanged, [&] { ++times; });
    frontmost.setCoverage(AppCoverage::Some);
    EXPECT_EQ(times, 1);
    EXPECT_EQ(view->gaps()->autoModeAdvice(),
              text("This desktop tells Vantle about some apps only. In all others Auto mode does "
                   "nothing, and time stays under the category it has."));
    EXPECT_EQ(view->gaps()->autoStartAdvice(), QString());
    frontmost.setCoverage(AppCoverage::All);
    EXPECT_EQ(view->gaps()->autoModeAdvice(), QString());
}

TEST_F(DesktopGapsTest, HelpForAutoModeSaysItsEffectOrItsFailure) {
    frontmost.setCoverage(AppCoverage::Some);
    frontmost.setHelp(FrontmostHelp::AtLogin);
    open();
    const DesktopGaps& gaps = *view->gaps();
    EXPECT_TRUE(gaps.autoModeAdvice().startsWith(text("This desktop tells Vantle about some")));
    EXPECT_TRUE(gaps.autoModeAdvice().endsWith(
        text("Log out and in again, and you can switch it on here.")));
    EXPECT_EQ(gaps.autoModeRemedy(), QString());
    int times = 0;
    QObject::connect(&row("Auto mode"), &PreferenceRowModel::changed, [&] { ++times; });
    frontmost.setHelp(FrontmostHelp::Offered);
    EXPECT_EQ(times, 1);
    EXPECT_EQ(row("Auto mode").remedy(), text("Switch the extension on"));
    row("Auto mode").applyRemedy();
    EXPECT_EQ(frontmost.accepted, 1);
    frontmost.setHelp(FrontmostHelp::Asked);
    EXPECT_EQ(gaps.autoModeRemedy(), text("Switching it on…"));
    frontmost.setHelp(FrontmostHelp::Refused);
    EXPECT_EQ(gaps.autoModeRemedy(), text("Try again"));
    EXPECT_TRUE(gaps.autoModeAdvice().endsWith(
        text("Allow extensions in GNOME's Extensions app, and try again.")));
    EXPECT_EQ(row("Start sessions").remedy(), QString());
}

TEST_F(DesktopGapsTest, ShortcutHeldByAnotherProgramOffersTheCommand) {
    hotKeyPort.outcome = {HotKeyPort::Registration::HeldByAnother, 0};
    open();
    EXPECT_EQ(view->gaps()->hotKeyAdvice(),
              text("Another key does as well. In your desktop's keyboard settings, bind one to "
                   "this command:"));
    int times = 0;
    QObject::connect(view->gaps(), &DesktopGaps::hotKeyChanged, [&] { ++times; });
    hotKeyPort.outcome = {HotKeyPort::Registration::Registered, 0};
    model->hotKey().registerHotKey();
    EXPECT_GT(times, 0);
    EXPECT_EQ(view->gaps()->hotKeyAdvice(), QString());
}

TEST_F(DesktopGapsTest, LostShortcutIsInactiveUntilItIsBack) {
    const SettingsView& settings = open();
    ASSERT_EQ(settings.hotKeyText(), text("⌥⌘B · active"));
    hotKeyPort.become({HotKeyPort::Registration::HeldByAnother, 0});
    EXPECT_EQ(settings.hotKeyText(), text("⌥⌘B unavailable"));
    EXPECT_EQ(settings.hotKeyFailure(), text("⌥⌘B is already used by another app."));
    EXPECT_NE(view->gaps()->hotKeyAdvice(), QString());
    hotKeyPort.become({HotKeyPort::Registration::Registered, 0});
    EXPECT_EQ(settings.hotKeyText(), text("⌥⌘B · active"));
}

TEST_F(DesktopGapsTest, DesktopWithoutShortcutsOffersTheCommand) {
    hotKeyPort.outcome = {HotKeyPort::Registration::NotOffered};
    const SettingsView& settings = open();
    EXPECT_FALSE(settings.isHotKeyActive());
    EXPECT_EQ(settings.hotKeyText(), text("⌥⌘B unavailable"));
    EXPECT_EQ(settings.hotKeyFailure(), QString());
    EXPECT_EQ(view->gaps()->hotKeyAdvice(),
              text("In this Wayland session no app can take keys by itself. In your desktop's "
                   "keyboard settings, bind a key to this command, and it works over all apps:"));
}

TEST_F(DesktopGapsTest, UntilTheDesktopAnswersTheShortcutIsNeitherActiveNorMissing) {
    hotKeyPort.outcome = {HotKeyPort::Registration::Waiting};
    const SettingsView& settings = open();
    EXPECT_FALSE(settings.isHotKeyActive());
    EXPECT_EQ(settings.hotKeyText(), text("The desktop has not answered yet"));
    EXPECT_EQ(view->gaps()->hotKeyAdvice(), QString());
    int times = 0;
    QObject::connect(&settings, &SettingsView::hotKeyChanged, [&] { ++times; });
    hotKeyPort.become({HotKeyPort::Registration::Registered});
    EXPECT_EQ(times, 1);
    EXPECT_EQ(settings.hotKeyText(), text("⌥⌘B · active"));
}

TEST_F(DesktopGapsTest, KeysChosenByTheUserAreNamed) {
    hotKeyPort.outcome = {HotKeyPort::Registration::Registered, 0, text("Meta+Alt+C")};
    const SettingsView& settings = open();
    EXPECT_TRUE(settings.isHotKeyActive());
    EXPECT_EQ(settings.hotKeyText(), text("Meta+Alt+C · active"));
    hotKeyPort.become({HotKeyPort::Registration::KeysRemoved});
    EXPECT_EQ(settings.hotKeyText(), text("⌥⌘B unavailable"));
    EXPECT_EQ(view->gaps()->hotKeyAdvice(),
              text("Your desktop's settings leave Vantle without keys. Choose some there, or bind "
                   "a key to this command:"));
}

TEST_F(DesktopGapsTest, ShortcutThatNeedsConsentIsSetUpAndRemovedByAPress) {
    hotKeyPort.way = text("portal");
    hotKeyPort.outcome = {HotKeyPort::Registration::NotAllowed};
    const SettingsView& settings = open();
    EXPECT_EQ(settings.hotKeyText(), text("⌥⌘B unavailable"));
    EXPECT_EQ(settings.hotKeyFailure(), QString());
    EXPECT_EQ(
        view->gaps()->hotKeyAdvice(),
        text("This desktop gives Vantle the shortcut only if you say so: set it up, or bind a "
             "key to this command:"));
    EXPECT_EQ(view->gaps()->hotKeyAction(), text("Set up the shortcut"));
    view->gaps()->pressHotKeyAction();
    EXPECT_EQ(hotKeyPort.isAllowed, true);
    EXPECT_EQ(view->gaps()->hotKeyAction(), QString()) << "while the desktop asks the user";
    hotKeyPort.become({HotKeyPort::Registration::Registered});
    EXPECT_EQ(settings.hotKeyText(), text("⌥⌘B · active"));
    EXPECT_EQ(view->gaps()->hotKeyAdvice(), QString());
    EXPECT_EQ(view->gaps()->hotKeyAction(), text("Switch the shortcut off"));
    view->gaps()->pressHotKeyAction();
    EXPECT_EQ(hotKeyPort.isAllowed, false);
    EXPECT_EQ(view->gaps()->hotKeyAction(), text("Set up the shortcut"));
}

TEST_F(DesktopGapsTest, TheCommandCanBeCopied) {
    open();
    EXPECT_FALSE(view->gaps()->commandCopied());
    view->gaps()->copyCommand();
    EXPECT_TRUE(view->gaps()->commandCopied());
    EXPECT_EQ(copied, QStringList{DesktopGaps::command()});
}

TEST_F(DesktopGapsTest, WithoutATrayTheAdviceNamesTheWayToThePanel) {
    tray.setShown(false);
    open();
    EXPECT_EQ(view->gaps()->trayAdvice(),
              text("This desktop shows no tray, so there is no icon to click. Open Vantle from "
                   "your applications once more, and its panel comes up."));
    int times = 0;
    QObject::connect(view->gaps(), &DesktopGaps::trayChanged, [&] { ++times; });
    tray.setShown(true);
    EXPECT_EQ(times, 1);
    EXPECT_EQ(view->gaps()->trayAdvice(), QString());
}

} // namespace
} // namespace vantle
