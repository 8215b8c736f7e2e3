// The view over the real model: what is on it, and that its controls reach what they are for.
#include "support/ShownItems.h"
#include "support/Text.h"
#include "surfaces/settings/SettingsWorld.h"

#include <QCoreApplication>
#include <QQuickItem>
#include <QQuickView>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::text;

class SettingsPageTest : public testing::Test, protected tests::SettingsWorld {
protected:
    QQuickItem& show() {
        open();
        m_window.engine()->addImportPath(text("qrc:/qt/qml"));
        m_window.setInitialProperties({{text("model"), QVariant::fromValue(&*view)}});
        m_window.setSource(QUrl(text("qrc:/qt/qml/Vantle/Settings/SettingsPage.qml")));
        m_window.show();
        m_window.requestActivate();
        QCoreApplication::processEvents();
        return *m_window.rootObject();
    }
    [[nodiscard]] bool shows(const char* words) { return tests::showsText(m_window, text(words)); }
    [[nodiscard]] QQuickItem* control(const char* name) {
        return tests::shownControl(m_window, text(name));
    }
    void press(const char* name) {
        QQuickItem* const item = control(name);
        ASSERT_NE(item, nullptr) << name;
        QMetaObject::invokeMethod(item, "clicked");
        QCoreApplication::processEvents();
    }
    void key(int code) {
        tests::sendKey(m_window, code);
        QCoreApplication::processEvents();
    }

    QQuickView m_window;
};

TEST_F(SettingsPageTest, WhatTheDesktopLacksStandsInItsRowAndNowhereWhereNothingDoes) {
    show();
    EXPECT_FALSE(shows("Tray"));
    EXPECT_EQ(control("Copy the command"), nullptr);
}

TEST_F(SettingsPageTest, WhatAutoModeAndTheIdleCounterCantSeeStandsInTheirRows) {
    const char* const idle = "This desktop doesn't tell apps when you last used keyboard or mouse, "
                             "so Vantle can't pause by that. Stop the session when you step away.";
    const char* const front = "This desktop doesn't tell Vantle which app is in front, so Auto "
                              "mode has nothing to go by. Choose the category by hand.";
    const char* const start = "This desktop doesn't tell Vantle which app is in front, so nothing "
                              "starts on its own.";
    show();
    for (const char* words : {idle, front, start})
        EXPECT_FALSE(shows(words)) << words;
    idleSource.setCanTell(false);
    frontmost.setCoverage(AppCoverage::None);
    QCoreApplication::processEvents();
    for (const char* words : {idle, front, start})
        EXPECT_TRUE(shows(words)) << words;
    EXPECT_FALSE(shows("No input for 3 minutes pauses the clock, backdated to your last keystroke "
                       "or click so away time is never counted. Default is 3."));
}

TEST_F(SettingsPageTest, ACommandStandsInForAShortcutThatCantBeHad) {
    hotKeyPort.outcome = {HotKeyPort::Registration::HeldByAnother, 0};
    tray.setShown(false);
    show();
    EXPECT_TRUE(shows("Tray"));
    EXPECT_FALSE(shows("Copied"));
    press("Copy the command");
    EXPECT_EQ(copied, QStringList{DesktopGaps::command()});
    EXPECT_TRUE(shows("Copied"));
}

TEST_F(SettingsPageTest, IsAsWideAndHighAsItsWindow) {
    const QQuickItem& page = show();
    EXPECT_EQ(page.implicitWidth(), 480);
    EXPECT_EQ(page.implicitHeight(), 620);
}

TEST_F(SettingsPageTest, HasEveryRowUnderItsHeading) {
    show();
    for (const char* words : {"FOCUS",
                              "Auto-pause after 3 min",
                              "Daily goal",
                              "2 h",
                              "Focus with sessions",
                              "CEREMONY",
                              "Ripple ceremony",
                              "Black out the screen",
                              "AUTO MODE",
                              "Auto mode",
                              "Start sessions automatically",
                              "Your apps",
                              "Apps you use will appear here once Auto mode is on.",
                              "GENERAL",
                              "Launch at login",
                              "Global hotkey",
                              "⌥⌘B · active",
                              "How time reads",
                              "Welcome",
                              "Your whole log, one JSON line per session.",
                              "Export my data",
                              "Erase everything"})
        EXPECT_TRUE(shows(words)) << words;
    EXPECT_FALSE(shows("When a session starts"));
    EXPECT_FALSE(shows("Erase everything? This cannot be undone."));
}

TEST_F(SettingsPageTest, ControlsReachTheirRows) {
    show();
    press("Half an hour more");
    EXPECT_TRUE(shows("2.5 h"));
    press("Half an hour less");
    press("Half an hour less");
    EXPECT_TRUE(shows("1.5 h"));
    press("Ripple ceremony");
    EXPECT_EQ(stored("ripple.disabled"), text("true"));
    press("Black out the screen");
    EXPECT_EQ(stored("ceremony.blackout"), text("false"));
    press("Auto mode");
    EXPECT_EQ(stored("auto.enabled"), text("false"));
    press("Start sessions automatically");
    EXPECT_EQ(stored("auto.autostart"), text("true"));
    press("Launch at login");
    EXPECT_TRUE(autostart.registered);
    press("Show the welcome again");
    EXPECT_TRUE(shows("The welcome window is open."));
    press("Export my data");
    EXPECT_TRUE(shows("Revealed in Finder"));
}

TEST_F(SettingsPageTest, SwitchOfTheLoginRowStaysWhereTheDesktopLeavesIt) {
    show();
    autostart.refuses = true;
    press("Launch at login");
    EXPECT_FALSE(control("Launch at login")->property("checked").toBool());
}

TEST_F(SettingsPageTest, ShortcutRowsComeWithTheSwitch) {
    show();
    press("Focus with sessions");
    EXPECT_TRUE(shows("When a session starts"));
    EXPECT_TRUE(shows("When it stops"));
    answer("");
    QCoreApplication::processEvents();
    EXPECT_FALSE(shows("When it stops"));
    EXPECT_TRUE(shows("No Shortcuts found yet. Make one, then flip this off and on."));
    press("Open Shortcuts");
    EXPECT_EQ(foldersOpened, 1);
}

TEST_F(SettingsPageTest, ApplicationsHaveAMenuAndAButtonThatForgets) {
    program();
    rules->loadIfNeeded();
    rules->recordSeen(text("player"), text("Video Player"));
    show();
    EXPECT_TRUE(shows("Video Player"));
    QMetaObject::invokeMethod(control("Skill for Video Player"), "activated", Q_ARG(int, 0));
    EXPECT_EQ(rules->ruling(text("player")), text("building"));
    press("Forget Video Player and its category");
    EXPECT_FALSE(shows("Video Player"));
}

TEST_F(SettingsPageTest, ShortcutThatIsTakenOffersNoOtherKey) {
    hotKeyPort.outcome = {HotKeyPort::Registration::HeldByAnother, 0};
    show();
    EXPECT_TRUE(shows("⌥⌘B unavailable"));
    EXPECT_EQ(control("Global hotkey"), nullptr);
}

TEST_F(SettingsPageTest, EraseAsksFirstWithTheFocusOnCancel) {
    disk.setContent(file("sessions.jsonl"), "{}\n");
    show();
    press("Erase everything");
    EXPECT_TRUE(shows("Erase everything? This cannot be undone."));
    EXPECT_EQ(control("Erase everything"), nullptr);
    EXPECT_TRUE(control("Cancel")->hasActiveFocus());
    press("Cancel");
    EXPECT_TRUE(control("Erase everything")->hasActiveFocus());
    press("Erase everything");
    press("Erase");
    EXPECT_TRUE(shows("Erased all local Vantle data."));
    EXPECT_FALSE(disk.content(file("sessions.jsonl")));
}

TEST_F(SettingsPageTest, QuestionBeforeAnEraseIsSeenAsAWhole) {
    const auto* const scroll = show().property("scroll").value<QQuickItem*>();
    press("Erase everything");
    (void)m_window.grabWindow(); // lays everything out
    (void)m_window.grabWindow();
    EXPECT_EQ(scroll->property("contentY").toDouble() + scroll->height(),
              scroll->property("contentHeight").toDouble());
}

TEST_F(SettingsPageTest, EscapeCancelsTheErase) {
    show();
    press("Erase everything");
    key(Qt::Key_Escape);
    EXPECT_FALSE(shows("Erase everything? This cannot be undone."));
    EXPECT_TRUE(control("Erase everything")->hasActiveFocus());
    press("Erase everything");
    QQuickItem* const elsewhere = control("Auto mode");
    elsewhere->forceActiveFocus();
    key(Qt::Key_Escape);
    EXPECT_FALSE(shows("Erase everything? This cannot be undone."));
    EXPECT_TRUE(elsewhere->hasActiveFocus());
}

} // namespace
} // namespace vantle
