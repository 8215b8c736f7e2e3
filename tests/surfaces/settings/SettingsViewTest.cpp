#include "support/Text.h"
#include "surfaces/settings/SettingsWorld.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::text;

class SettingsViewTest : public testing::Test, protected tests::SettingsWorld {};

TEST_F(SettingsViewTest, NewPersonFindsTheDefaults) {
    const SettingsView& settings = open();
    EXPECT_EQ(row("Auto-pause").value(), 3);
    EXPECT_EQ(row("Daily goal").value(), 2);
    EXPECT_EQ(row("Daily goal").valueText(), text("2 h"));
    EXPECT_FALSE(settings.focusLinked());
    EXPECT_TRUE(row("Ripple ceremony").isOn());
    EXPECT_TRUE(row("Black out").isOn());
    EXPECT_TRUE(row("Auto mode").isOn());
    EXPECT_FALSE(row("Start sessions").isOn());
    EXPECT_FALSE(settings.launchAtLogin());
    EXPECT_EQ(settings.durationChoice(), 0);
}

TEST_F(SettingsViewTest, EverySwitchIsStoredAtOnceAndFoundAgain) {
    SettingsView& settings = open();
    row("Black out").setOn(false);
    EXPECT_EQ(stored("ceremony.blackout"), text("false"));
    row("Auto mode").setOn(false);
    EXPECT_EQ(stored("auto.enabled"), text("false"));
    row("Start sessions").setOn(true);
    EXPECT_EQ(stored("auto.autostart"), text("true"));
    settings.setFocusLinked(true);
    EXPECT_EQ(stored("focus.linked"), text("true"));
    const SettingsView& again = open();
    EXPECT_FALSE(row("Black out").isOn());
    EXPECT_FALSE(row("Auto mode").isOn());
    EXPECT_TRUE(row("Start sessions").isOn());
    EXPECT_TRUE(again.focusLinked());
}

TEST_F(SettingsViewTest, TurningTheCeremonyOffStoresThatItIsDisabled) {
    open();
    row("Ripple ceremony").setOn(false);
    EXPECT_EQ(stored("ripple.disabled"), text("true"));
    open();
    EXPECT_FALSE(row("Ripple ceremony").isOn());
    row("Ripple ceremony").setOn(true);
    EXPECT_EQ(stored("ripple.disabled"), text("false"));
}

TEST_F(SettingsViewTest, AwayLimitIsStoredInSecondsAndHoldsAtOnce) {
    open();
    row("Auto-pause").setValue(7);
    EXPECT_EQ(stored("idle.thresholdSeconds"), text("420"));
    EXPECT_EQ(model->idle().thresholdSeconds(), 420);
    open();
    EXPECT_EQ(row("Auto-pause").value(), 7);
}

TEST_F(SettingsViewTest, AwayLimitIsOneToTenWholeMinutes) {
    open();
    PreferenceRowModel& limit = row("Auto-pause");
    limit.setValue(0);
    EXPECT_EQ(limit.value(), 1);
    limit.setValue(11);
    EXPECT_EQ(limit.value(), 10);
    limit.setValue(4.4);
    EXPECT_EQ(limit.value(), 4);
}

TEST_F(SettingsViewTest, AwayLimitOfAnotherMakingIsToldAsItIs) {
    open();
    const PreferenceRowModel& limit = row("Auto-pause");
    preferences.setNumber(text("idle.thresholdSeconds"), 1800);
    EXPECT_EQ(limit.title(), text("Auto-pause after 30 min"));
    preferences.setNumber(text("idle.thresholdSeconds"), 20);
    EXPECT_EQ(limit.title(), text("Auto-pause after 1 min"));
    preferences.setNumber(text("idle.thresholdSeconds"), 9); // counts as none
    EXPECT_EQ(limit.title(), text("Auto-pause after 3 min"));
}

TEST_F(SettingsViewTest, StoredGoalOutOfReasonIsReadAsEverywhereElse) {
    open();
    const PreferenceRowModel& goal = row("Daily goal");
    for (const double stored : {0.0, -3.0}) {
        preferences.setNumber(text("goal.dailyHours"), stored);
        EXPECT_EQ(goal.value(), 2) << stored;
    }
    preferences.setNumber(text("goal.dailyHours"), 30);
    EXPECT_EQ(goal.valueText(), text("24 h"));
}

TEST_F(SettingsViewTest, GoalGoesByHalfHoursAndIsStored) {
    open();
    PreferenceRowModel& goal = row("Daily goal");
    goal.step(1);
    EXPECT_EQ(goal.valueText(), text("2.5 h"));
    EXPECT_EQ(stored("goal.dailyHours"), text("2.5"));
    goal.step(-1);
    EXPECT_EQ(stored("goal.dailyHours"), text("2"));
}

TEST_F(SettingsViewTest, ChipsCannotLeaveTheRangeOfTheGoal) {
    open();
    PreferenceRowModel& goal = row("Daily goal");
    EXPECT_FALSE(goal.isLowest());
    goal.step(-5);
    EXPECT_EQ(goal.value(), 0.5);
    EXPECT_EQ(goal.valueText(), text("30 min"));
    EXPECT_TRUE(goal.isLowest());
    for (int i = 0; i < 30; ++i)
        goal.step(1);
    EXPECT_EQ(goal.value(), 12);
    EXPECT_TRUE(goal.isHighest());
}

TEST_F(SettingsViewTest, GoalAboveTheRangeComesBackIntoItByTheFirstStep) {
    preferences.setNumber(text("goal.dailyHours"), 20);
    open();
    EXPECT_TRUE(row("Daily goal").isHighest());
    row("Daily goal").step(-1);
    EXPECT_EQ(row("Daily goal").value(), 12);
}

TEST_F(SettingsViewTest, LoginSwitchDrivesTheDesktop) {
    SettingsView& settings = open();
    settings.setLaunchAtLogin(true);
    EXPECT_TRUE(autostart.registered);
    EXPECT_TRUE(settings.launchAtLogin());
    settings.setLaunchAtLogin(false);
    EXPECT_FALSE(autostart.registered);
    EXPECT_FALSE(settings.launchAtLogin());
    autostart.registered = true; // by the desktop's own settings
    EXPECT_TRUE(open().launchAtLogin());
}

TEST_F(SettingsViewTest, LoginSwitchFlipsBackWhenTheDesktopRefuses) {
    SettingsView& settings = open();
    autostart.refuses = true;
    int times = 0;
    QObject::connect(&settings, &SettingsView::switched, [&] { ++times; });
    settings.setLaunchAtLogin(true);
    EXPECT_FALSE(settings.launchAtLogin());
    EXPECT_EQ(times, 1);
    autostart.registered = true;
    SettingsView& again = open();
    again.setLaunchAtLogin(false);
    EXPECT_TRUE(again.launchAtLogin());
}

TEST_F(SettingsViewTest, LoginSwitchFlipsBackWhenThePortalRefusesLater) {
    SettingsView& settings = open();
    settings::loginByPortal.write(preferences, true);
    settings.setLaunchAtLogin(true);
    ASSERT_TRUE(settings.launchAtLogin());
    autostart.registered = false;
    settings::loginByPortal.write(preferences, false);
    EXPECT_FALSE(settings.launchAtLogin());
}

TEST_F(SettingsViewTest, ShortcutInUseIsActive) {
    const SettingsView& settings = open();
    EXPECT_TRUE(settings.isHotKeyActive());
    EXPECT_EQ(settings.hotKeyText(), text("⌥⌘B · active"));
    EXPECT_EQ(settings.hotKeyFailure(), QString());
}

TEST_F(SettingsViewTest, ShortcutThatAnotherApplicationHoldsIsUnavailable) {
    hotKeyPort.outcome = {HotKeyPort::Registration::HeldByAnother, 0};
    const SettingsView& settings = open();
    EXPECT_FALSE(settings.isHotKeyActive());
    EXPECT_EQ(settings.hotKeyText(), text("⌥⌘B unavailable"));
    EXPECT_EQ(settings.hotKeyFailure(), text("⌥⌘B is already used by another app."));
    int times = 0;
    QObject::connect(&settings, &SettingsView::hotKeyChanged, [&] { ++times; });
    hotKeyPort.outcome = {HotKeyPort::Registration::Registered, 0};
    model->hotKey().registerHotKey();
    EXPECT_EQ(settings.hotKeyText(), text("⌥⌘B · active"));
    EXPECT_GT(times, 0);
}

TEST_F(SettingsViewTest, EachStyleOfDurationsIsOfferedWithAnExample) {
    EXPECT_EQ(open().durationChoices(),
              (QList<QString>{text("Natural · 3.5 h"), text("Hours and minutes · 3 h 30 min"),
                              text("Minutes only · 210 min"), text("Clock · 3:30:12")}));
}

TEST_F(SettingsViewTest, ChosenStyleHoldsEverywhereAtOnce) {
    SettingsView& settings = open();
    row("Daily goal").step(1);
    int times = 0;
    QObject::connect(&notifications, &NotificationCenter::HFSessionsChanged, [&] { ++times; });
    settings.chooseDuration(1);
    EXPECT_EQ(stored("format.duration"), text("hoursMinutes"));
    EXPECT_EQ(times, 1);
    EXPECT_EQ(row("Daily goal").valueText(), text("2 h 30 min"));
    EXPECT_EQ(open().durationChoice(), 1);
    view->chooseDuration(4); // there is none
    EXPECT_EQ(view->durationChoice(), 1);
}

TEST_F(SettingsViewTest, WelcomeIsAskedForAndSaysSo) {
    SettingsView& settings = open();
    int asked = 0;
    QObject::connect(&notifications, &NotificationCenter::HFShowWelcome, [&] { ++asked; });
    EXPECT_EQ(settings.welcomeCaption(),
              text("Opens the welcome again, right away. Your log is untouched."));
    settings.replayWelcome();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(settings.welcomeReplayArmed());
    EXPECT_EQ(settings.welcomeCaption(), text("The welcome window is open."));
    EXPECT_FALSE(open().welcomeReplayArmed());
}

} // namespace
} // namespace vantle
