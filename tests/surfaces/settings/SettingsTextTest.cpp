// Every word of the settings, written down once more, so that none changes by accident.
#include "support/Text.h"
#include "surfaces/settings/SettingsWorld.h"

#include <QMetaEnum>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <map>

namespace vantle {
namespace {

using tests::text;

struct Words {
    const char* title;
    const char* caption;
};

const std::map<SettingsView::Row, Words> kWords = {
    {SettingsView::FocusLinkRow,
     {"Focus with sessions",
      "Runs a Shortcut of yours when a session starts, and another when it stops. Make them in "
      "the Shortcuts app with the Set Focus action; macOS does the silencing, and Vantle never "
      "sees your notifications. Nothing is blocked."}},
    {SettingsView::LoginRow,
     {"Launch at login",
      "Registers with macOS as a login item (you'll see the standard \"background item added\" "
      "notice once)."}},
    {SettingsView::HotKeyRow,
     {"Global hotkey", "Starts or stops vantle from inside any app. Fixed in this version."}},
    {SettingsView::TrayRow, {"Tray", ""}},
    {SettingsView::DurationRow,
     {"How time reads",
      "Every duration in Vantle reads this way: the dashboard, the notch, Wrapped, and the card "
      "after each session. Clock is the only one that counts seconds while you work."}},
    {SettingsView::StartShortcutRow, {"When a session starts", ""}},
    {SettingsView::StopShortcutRow, {"When it stops", ""}},
    {SettingsView::WelcomeRow, {"Welcome", ""}},
    {SettingsView::ExportRow, {"", "Your whole log, one JSON line per session."}},
    {SettingsView::EraseRow,
     {"",
      "Deletes all local sessions, skills, app categories, and preferences. Everything this app "
      "knows lives on this Mac, so this removes all of it."}},
};

class SettingsTextTest : public testing::Test, protected tests::SettingsWorld {};

TEST_F(SettingsTextTest, EveryRowHasItsWords) {
    const QMetaEnum rows = QMetaEnum::fromType<SettingsView::Row>();
    ASSERT_EQ(static_cast<int>(kWords.size()), rows.keyCount());
    for (const auto& [row, words] : kWords) {
        EXPECT_EQ(SettingsView::title(row), text(words.title)) << rows.valueToKey(row);
        EXPECT_EQ(SettingsView::caption(row), text(words.caption)) << rows.valueToKey(row);
    }
}

TEST_F(SettingsTextTest, ButtonsSayWhatTheyDo) {
    EXPECT_EQ(SettingsView::action(SettingsView::FocusLinkRow), text("Open Shortcuts"));
    EXPECT_EQ(SettingsView::action(SettingsView::WelcomeRow), text("Show the welcome again"));
    EXPECT_EQ(SettingsView::action(SettingsView::ExportRow), text("Export my data"));
    EXPECT_EQ(SettingsView::action(SettingsView::EraseRow), text("Erase everything"));
    EXPECT_EQ(SettingsView::help(SettingsView::DurationRow), text("How durations are written"));
    EXPECT_EQ(SettingsView::help(SettingsView::ExportRow),
              text("Reveal the local session log in Finder"));
    EXPECT_EQ(SettingsView::help(SettingsView::EraseRow),
              text("Delete every local data file this app has written"));
}

TEST_F(SettingsTextTest, VersionHasItsNumberAndItsBuild) {
    const QRegularExpression form(text("^Vantle [0-9]+(\\.[0-9]+)+ \\([0-9]+\\)$"));
    EXPECT_TRUE(form.match(SettingsView::versionLine()).hasMatch())
        << SettingsView::versionLine().toStdString();
}

} // namespace
} // namespace vantle
