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
    {SettingsView::GoalRow,
     {"Daily goal",
      "The dashboard's Today card measures against this goal, and This week against seven of "
      "it. Default is 2 hours."}},
    {SettingsView::FocusLinkRow,
     {"Focus with sessions",
      "Runs a Shortcut of yours when a session starts, and another when it stops. Make them in "
      "the Shortcuts app with the Set Focus action; macOS does the silencing, and Vantle never "
      "sees your notifications. Nothing is blocked."}},
    {SettingsView::RippleRow,
     {"Ripple ceremony",
      "Presenter mode: turn this off before a screen share and the ceremony never crashes your "
      "call. It's a manual switch on purpose: macOS can only detect screen sharing through an "
      "API that itself triggers the Screen Recording permission prompt, the exact pop-up this "
      "app promises never to show."}},
    {SettingsView::BlackoutRow,
     {"Black out the screen",
      "The ritual plays on a fully black screen instead of over your dimmed desktop. Your "
      "windows come back the moment it ends. Turn this on when the apps behind the dots feel "
      "busy."}},
    {SettingsView::AutoStartRow,
     {"Start sessions automatically",
      "After about 2 minutes in a mapped app, vantle starts on its own."}},
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
    {SettingsView::AutoModeRow,
     {"Auto mode",
      "On from the first launch; this switch turns it off. Vantle notices which app is in front "
      "and files the time under the right category on its own. It already knows the common "
      "tools: Claude, Codex and Xcode count as Build, Figma as Design, Slack and Mail as "
      "Connections, Notion and Linear as Founder Ops, and dozens more. Anything it does not "
      "recognize, it asks you about once, right when you are in it. Stay in a mapped app for "
      "about 45 seconds and a running session switches by itself. Every mapping is yours to "
      "change below."}},
    {SettingsView::AutoModePrivacyRow,
     {"", "It reads only the app's name. No window titles, no tabs, no documents, no screen. App "
          "names never leave this Mac."}},
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

TEST_F(SettingsTextTest, AwayLimitOfOneMinuteIsSingular) {
    SettingsView& settings = open();
    EXPECT_EQ(settings.idleTitle(), text("Auto-pause after 3 min"));
    EXPECT_EQ(settings.idleCaption(),
              text("No input for 3 minutes pauses the clock, backdated to your last keystroke or "
                   "click so away time is never counted. Default is 3."));
    settings.setIdleMinutes(1);
    EXPECT_EQ(settings.idleTitle(), text("Auto-pause after 1 min"));
    EXPECT_EQ(settings.idleCaption(),
              text("No input for 1 minute pauses the clock, backdated to your last keystroke or "
                   "click so away time is never counted. Default is 3."));
}

TEST_F(SettingsTextTest, VersionHasItsNumberAndItsBuild) {
    const QRegularExpression form(text("^Vantle [0-9]+(\\.[0-9]+)+ \\([0-9]+\\)$"));
    EXPECT_TRUE(form.match(SettingsView::versionLine()).hasMatch())
        << SettingsView::versionLine().toStdString();
}

} // namespace
} // namespace vantle
