#include "support/Text.h"
#include "surfaces/settings/SettingsWorld.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::text;

class SettingsShortcutsTest : public testing::Test, protected tests::SettingsWorld {
protected:
    SettingsView& openLinked() {
        preferences.setBoolean(text("focus.linked"), true);
        return open();
    }
    const QString m_empty = text("Choose a Shortcut");
};

TEST_F(SettingsShortcutsTest, AreListedWhenTheSwitchGoesOn) {
    SettingsView& settings = open();
    EXPECT_TRUE(runner.collected.empty());
    settings.setFocusLinked(true);
    EXPECT_EQ(stored("focus.linked"), text("true"));
    ASSERT_EQ(runner.collected.size(), 1U);
    EXPECT_EQ(runner.collected[0].arguments, QStringList{text("list")});
    EXPECT_FALSE(settings.hasNoShortcuts()); // that is not known yet
    answer("Deep Work On\nAll \"Quiet\" \n");
    EXPECT_EQ(settings.startChoices(),
              (QList<QString>{m_empty, text("Deep Work On"), text("All \"Quiet\" ")}));
    EXPECT_EQ(settings.startChoice(), 0);
    settings.setFocusLinked(false);
    EXPECT_EQ(stored("focus.linked"), text("false"));
    EXPECT_EQ(runner.collected.size(), 1U);
}

TEST_F(SettingsShortcutsTest, AreListedWhenTheWindowOpensWithTheSwitchOn) {
    openLinked();
    EXPECT_EQ(runner.collected.size(), 1U);
}

TEST_F(SettingsShortcutsTest, ChoiceIsStoredUnderItsKeyAsItIsSpelt) {
    SettingsView& settings = openLinked();
    answer("On\nOff \n");
    settings.chooseStartShortcut(1);
    settings.chooseStopShortcut(2);
    EXPECT_EQ(stored("focus.shortcut.start"), text("On"));
    EXPECT_EQ(stored("focus.shortcut.stop"), text("Off "));
    EXPECT_EQ(settings.startChoice(), 1);
    EXPECT_EQ(settings.stopChoice(), 2);
    settings.chooseStartShortcut(0);
    EXPECT_EQ(stored("focus.shortcut.start"), QString());
    EXPECT_EQ(settings.startChoice(), 0);
    EXPECT_EQ(stored("focus.shortcut.stop"), text("Off "));
}

TEST_F(SettingsShortcutsTest, StoredChoiceShowsEvenWhenItIsNoLongerThere) {
    preferences.setString(text("focus.shortcut.stop"), text("Old"));
    SettingsView& settings = openLinked();
    EXPECT_EQ(settings.stopChoices().value(settings.stopChoice()), text("Old"));
    answer("On\nOff\n");
    EXPECT_EQ(settings.stopChoices().value(settings.stopChoice()), text("Old"));
    EXPECT_EQ(settings.startChoices().size(), 3);
    settings.chooseStopShortcut(2);
    EXPECT_EQ(settings.stopChoices(), (QList<QString>{m_empty, text("On"), text("Off")}));
}

TEST_F(SettingsShortcutsTest, ShortcutNamedAsTheEmptyChoiceIsAShortcut) {
    SettingsView& settings = openLinked();
    answer("Choose a Shortcut\n");
    settings.chooseStartShortcut(1);
    EXPECT_EQ(settings.startChoice(), 1);
    EXPECT_EQ(stored("focus.shortcut.start"), m_empty);
}

TEST_F(SettingsShortcutsTest, FlippingTheSwitchLooksAgain) {
    SettingsView& settings = openLinked();
    answer("");
    EXPECT_TRUE(settings.hasNoShortcuts());
    settings.setFocusLinked(false);
    settings.setFocusLinked(true);
    answer("On\n");
    EXPECT_FALSE(settings.hasNoShortcuts());
}

TEST_F(SettingsShortcutsTest, OnlyTheLatestListCounts) {
    SettingsView& settings = openLinked();
    settings.setFocusLinked(true);
    answer(""); // of the first question
    EXPECT_FALSE(settings.hasNoShortcuts());
    answer("On\n");
    EXPECT_EQ(settings.startChoices().size(), 2);
}

TEST_F(SettingsShortcutsTest, FailedListIsAnEmptyOne) {
    SettingsView& settings = openLinked();
    runner.end(std::nullopt);
    EXPECT_TRUE(settings.hasNoShortcuts());
}

TEST_F(SettingsShortcutsTest, ListThatComesAfterTheWindowClosedIsDropped) {
    openLinked();
    view.reset();
    answer("On\n"); // after the window has closed
    EXPECT_EQ(open().startChoices().size(), 1);
}

TEST_F(SettingsShortcutsTest, TheirFolderOpensAndIfNotSaysWhy) {
    SettingsView& settings = openLinked();
    folderRefuses = true;
    settings.openShortcuts();
    EXPECT_TRUE(
        settings.shortcutsFailure().startsWith(text("Couldn't open Shortcuts: Permission denied")));
    folderRefuses = false;
    settings.openShortcuts();
    EXPECT_EQ(settings.shortcutsFailure(), QString());
    EXPECT_EQ(foldersOpened, 2);
}

} // namespace
} // namespace vantle
