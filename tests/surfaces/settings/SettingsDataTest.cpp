#include "support/Text.h"
#include "surfaces/settings/SettingsWorld.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using Operation = fakes::FaultyFileSystem::Operation;

using tests::text;

class SettingsDataTest : public testing::Test, protected tests::SettingsWorld {
protected:
    const QString m_log = file("sessions.jsonl");
};

TEST_F(SettingsDataTest, ExportRevealsTheLogItself) {
    disk.setContent(m_log, "kept as it is\n");
    SettingsView& settings = open();
    EXPECT_EQ(settings.exportFeedback(), QString());
    settings.exportData();
    EXPECT_EQ(revealed, QStringList{m_log});
    EXPECT_EQ(settings.exportFeedback(), text("Revealed in Finder"));
    EXPECT_FALSE(settings.exportFailed());
    EXPECT_EQ(disk.content(m_log), QByteArray("kept as it is\n"));
}

TEST_F(SettingsDataTest, ExportWithoutSessionsRevealsAnEmptyPrivateLog) {
    SettingsView& settings = open();
    ASSERT_FALSE(disk.content(m_log));
    settings.exportData();
    EXPECT_EQ(disk.content(m_log), QByteArray());
    EXPECT_EQ(files.mode(m_log).value() & 0777, 0600);
    EXPECT_EQ(revealed, QStringList{m_log});
}

TEST_F(SettingsDataTest, ExportOnAFullDiskSaysWhyAndRevealsNothing) {
    SettingsView& settings = open();
    breakWrites(text("sessions.jsonl"), true);
    settings.exportData();
    EXPECT_TRUE(settings.exportFailed());
    EXPECT_TRUE(
        settings.exportFeedback().startsWith(text("Couldn't export: No space left on device")))
        << settings.exportFeedback().toStdString();
    EXPECT_TRUE(revealed.isEmpty());
    breakWrites(text("sessions.jsonl"), false);
    settings.exportData();
    EXPECT_FALSE(settings.exportFailed());
    EXPECT_EQ(settings.exportFeedback(), text("Revealed in Finder"));
}

TEST_F(SettingsDataTest, CancelledEraseChangesNothing) {
    disk.setContent(m_log, "kept\n");
    preferences.setBoolean(text("focus.linked"), true);
    SettingsView& settings = open();
    const QStringList keys = preferences.keys();
    settings.askToErase();
    EXPECT_TRUE(settings.confirmingErase());
    settings.cancelErase();
    EXPECT_FALSE(settings.confirmingErase());
    EXPECT_EQ(settings.eraseStatus(), QString());
    EXPECT_EQ(preferences.keys(), keys);
    EXPECT_EQ(disk.content(m_log), QByteArray("kept\n"));
}

TEST_F(SettingsDataTest, NothingIsErasedWithoutBeingAskedFor) {
    disk.setContent(m_log, "kept\n");
    open().confirmErase();
    EXPECT_TRUE(disk.content(m_log));
}

TEST_F(SettingsDataTest, EraseTakesTheRunningSessionAndEveryPreference) {
    SettingsView& settings = open();
    press();
    row("Ripple ceremony").setOn(false);
    row("Daily goal").step(3);
    row("Auto-pause").setValue(7);
    settings.exportData();
    settings.askToErase();
    settings.confirmErase();
    EXPECT_EQ(settings.eraseStatus(), text("Erased all local Vantle data."));
    EXPECT_TRUE(settings.eraseSucceeded());
    EXPECT_FALSE(settings.confirmingErase());
    EXPECT_EQ(model->tracker().state(), TrackerCore::State::Idle);
    EXPECT_FALSE(disk.content(m_log));
    EXPECT_FALSE(hasMarker());
    EXPECT_EQ(stored("ripple.disabled"), std::nullopt);
}

TEST_F(SettingsDataTest, AfterAnEraseTheRowsShowWhatHoldsNow) {
    SettingsView& settings = open();
    row("Ripple ceremony").setOn(false);
    settings.setFocusLinked(true);
    row("Daily goal").step(3);
    row("Auto-pause").setValue(7);
    settings.chooseDuration(3);
    settings.exportData();
    settings.askToErase();
    settings.confirmErase();
    EXPECT_TRUE(row("Ripple ceremony").isOn());
    EXPECT_FALSE(settings.focusLinked());
    EXPECT_EQ(row("Daily goal").valueText(), text("2 h"));
    EXPECT_EQ(row("Auto-pause").title(), text("Auto-pause after 3 min"));
    EXPECT_EQ(settings.durationChoice(), 0);
    EXPECT_EQ(settings.exportFeedback(), QString());
}

TEST_F(SettingsDataTest, EraseThatLeavesSomethingSaysWhat) {
    disk.setContent(m_log, "{}\n");
    SettingsView& settings = open();
    files.fail(Operation::Remove, text("sessions.jsonl"), EACCES);
    settings.askToErase();
    settings.confirmErase();
    EXPECT_FALSE(settings.eraseSucceeded());
    EXPECT_TRUE(settings.eraseStatus().startsWith(
        text("Some local data could not be erased: sessions.jsonl: Permission denied")))
        << settings.eraseStatus().toStdString();
    EXPECT_TRUE(settings.eraseStatus().endsWith(text("sessions.jsonl still exists")));
    files.healAll();
    settings.askToErase();
    settings.confirmErase();
    EXPECT_TRUE(settings.eraseSucceeded());
}

TEST_F(SettingsDataTest, FailedEraseIsAFailureHoweverItsTextBegins) {
    program();
    SettingsView::Environment failing = environment();
    failing.eraseAllData = [] { return std::optional(text("Erased all but sessions.jsonl")); };
    SettingsView& settings = view.emplace(failing);
    EXPECT_FALSE(settings.eraseSucceeded());
    settings.askToErase();
    settings.confirmErase();
    EXPECT_FALSE(settings.eraseSucceeded());
    EXPECT_EQ(settings.eraseStatus(), text("Erased all but sessions.jsonl"));
}

} // namespace
} // namespace vantle
