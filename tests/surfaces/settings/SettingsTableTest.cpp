// Every word of the table, written down once more, so that none changes by accident.
#include "support/Text.h"
#include "surfaces/settings/SettingsWorld.h"

#include <gtest/gtest.h>

#include <map>

namespace vantle {
namespace {

using tests::text;

const std::map<QString, QString> kCaptions = {
    {text("Auto-pause after 3 min"),
     text("No input for 3 minutes pauses the clock, backdated to your last keystroke or click so "
          "away time is never counted. Default is 3.")},
    {text("Calls and videos count as being here"),
     text("While an app keeps the screen awake, the clock goes on without a keystroke or click, "
          "for four hours in a row at most. Vantle learns only that an app does so, never what you "
          "hear or see.")},
    {text("Daily goal"), text("The dashboard's Today card measures against this goal, and This "
                              "week against seven of it. Default is 2 hours.")},
    {text("Ripple ceremony"),
     text("Presenter mode: turn this off before a screen share and the ceremony never crashes your "
          "call. It's a manual switch on purpose: macOS can only detect screen sharing through an "
          "API that itself triggers the Screen Recording permission prompt, the exact pop-up this "
          "app promises never to show.")},
    {text("Black out the screen"),
     text("The ritual plays on a fully black screen instead of over your dimmed desktop. Your "
          "windows come back the moment it ends. Turn this on when the apps behind the dots feel "
          "busy.")},
    {text("Auto mode"),
     text("On from the first launch; this switch turns it off. Vantle notices which app is in "
          "front and files the time under the right category on its own. It already knows the "
          "common tools: Claude, Codex and Xcode count as Build, Figma as Design, Slack and Mail "
          "as Connections, Notion and Linear as Founder Ops, and dozens more. Anything it does not "
          "recognize, it asks you about once, right when you are in it. Stay in a mapped app for "
          "about 45 seconds and a running session switches by itself. Every mapping is yours to "
          "change below.")},
    {text("Start sessions automatically"),
     text("After about 2 minutes in a mapped app, vantle starts on its own.")},
};

class SettingsTableTest : public testing::Test, protected tests::SettingsWorld {};

TEST_F(SettingsTableTest, EveryRowHasItsWords) {
    open();
    std::map<QString, QString> captions;
    for (const PreferenceRowModel::Entry& entry : settingsTable()) {
        const PreferenceRowModel row(entry, preferences, *view->gaps(), nullptr);
        captions[row.title()] = row.caption();
    }
    EXPECT_EQ(captions, kCaptions);
    EXPECT_EQ(row("Auto mode").note(),
              text("It reads only the app's name. No window titles, no tabs, no documents, no "
                   "screen. App names never leave this Mac."));
    EXPECT_EQ(row("Daily goal").lessName(), text("Daily goal, half an hour less"));
    EXPECT_EQ(row("Daily goal").moreName(), text("Daily goal, half an hour more"));
}

TEST_F(SettingsTableTest, AwayLimitOfOneMinuteIsSingular) {
    open();
    PreferenceRowModel& limit = row("Auto-pause");
    limit.setValue(1);
    EXPECT_EQ(limit.title(), text("Auto-pause after 1 min"));
    EXPECT_EQ(limit.caption(),
              text("No input for 1 minute pauses the clock, backdated to your last keystroke or "
                   "click so away time is never counted. Default is 3."));
}

TEST_F(SettingsTableTest, RowTellsWhenItsPreferenceChangesElsewhere) {
    open();
    const PreferenceRowModel& limit = row("Auto-pause");
    const PreferenceRowModel& goal = row("Daily goal");
    int limits = 0;
    int goals = 0;
    QObject::connect(&limit, &PreferenceRowModel::changed, [&] { ++limits; });
    QObject::connect(&goal, &PreferenceRowModel::changed, [&] { ++goals; });
    preferences.setNumber(text("idle.thresholdSeconds"), 300);
    EXPECT_EQ(std::pair(limits, goals), std::pair(1, 0));
    preferences.setString(text("format.duration"), text("clock")); // in which the goal reads, too
    EXPECT_EQ(std::pair(limits, goals), std::pair(1, 1));
    EXPECT_EQ(goal.valueText(), text("2:00:00"));
}

} // namespace
} // namespace vantle
