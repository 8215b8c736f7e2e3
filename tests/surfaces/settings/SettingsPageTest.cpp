// The settings by pointer and keys: what is on the page, and that its controls reach what they are
// for.
#include "support/ReadElements.h"
#include "support/ShownView.h"
#include "support/Text.h"
#include "surfaces/settings/SettingsWindow.h"
#include "surfaces/settings/SettingsWorld.h"

#include <algorithm>

namespace vantle {
namespace {

using tests::text;

class SettingsPageTest : public testing::Test, protected tests::SettingsWorld {
protected:
    QQuickItem& show() {
        open();
        return m_shown.emplace().show("Settings/SettingsPage",
                                      {{text("model"), QVariant::fromValue(&*view)}},
                                      settingsWindowRules().contentSize);
    }
    [[nodiscard]] bool shows(const char* words) { return m_shown->shows(text(words)); }
    [[nodiscard]] QQuickItem* control(const char* name) { return m_shown->control(text(name)); }
    void click(const char* name) { m_shown->click(text(name)); }
    /// All controls that can be clicked in the row of that title.
    [[nodiscard]] QStringList controlsOfRow(const char* title) {
        QStringList names;
        QQuickItem* row =
            tests::shownItem(m_shown->window().contentItem(), [&](const QQuickItem& item) {
                return item.property("title").toString() == text(title) &&
                       item.property("caption").isValid();
            });
        if (row == nullptr) return {text("no such row")};
        (void)tests::shownItem(row, [&](const QQuickItem& item) {
            if (item.metaObject()->indexOfSignal("clicked()") >= 0)
                names << item.property("name").toString();
            return false;
        });
        return names;
    }

    /// How many menus of choices have been made, open or not.
    [[nodiscard]] int menus() {
        int count = 0;
        QList<QQuickItem*> items{m_shown->window().contentItem()};
        while (!items.isEmpty()) {
            const QQuickItem* const item = items.takeLast();
            if (item->metaObject()->indexOfProperty("picker") >= 0) ++count;
            items += item->childItems();
        }
        return count;
    }

    std::optional<tests::ShownView> m_shown;
};

TEST_F(SettingsPageTest, WhatTheDesktopLacksStandsInItsRowAndNowhereWhereNothingDoes) {
    show();
    EXPECT_FALSE(shows("Tray"));
    EXPECT_EQ(control("Copy the command"), nullptr);
}

// A reader that comes to a window speaks its loose texts.
TEST_F(SettingsPageTest, CaptionsAreToldAsDescriptionsAlone) {
    show();
    QStringList texts;
    QStringList descriptions;
    for (const tests::ReadElement& one : tests::readElements(m_shown->window())) {
        descriptions << one.description;
        if (one.role == QAccessible::StaticText || one.role == QAccessible::Heading)
            texts << one.name;
    }
    EXPECT_LT(texts.join(u' ').split(u' ').size(), 60) << texts.join(u'|').toStdString();
    for (const char* start : {"No input for 3 minutes pauses", "The dashboard's Today card",
                              "Runs a Shortcut of yours", "Presenter mode:"})
        EXPECT_TRUE(std::ranges::any_of(descriptions, [&](const QString& said) {
            return said.startsWith(text(start));
        })) << start;
}

TEST_F(SettingsPageTest, ApplicationsNameIsReadBesideAModeOfALongOne) {
    program();
    const Skill mode = skills->display(text("building"));
    model->updateSkill(mode.id, text("WWWWWWWWWWWWWWWWWWWW"), mode.hexRGB);
    rules->loadIfNeeded();
    rules->recordSeen(text("terminal"), text("Terminal Emulator"));
    rules->setRule(text("terminal"), mode.id);
    show();
    QQuickItem* const name =
        tests::shownItem(m_shown->window().contentItem(), [](const QQuickItem& item) {
            return item.property("text").toString() == text("Terminal Emulator");
        });
    ASSERT_NE(name, nullptr);
    EXPECT_FALSE(name->property("truncated").toBool());
}

TEST_F(SettingsPageTest, NoMenuIsMadeForFortyApplicationsBeforeOneIsOpened) {
    program();
    rules->loadIfNeeded();
    for (int number = 1; number <= 40; ++number) {
        const QString id = text("app%1").arg(number, 2, 10, QLatin1Char('0'));
        rules->recordSeen(id, id);
    }
    show();
    EXPECT_EQ(menus(), 0);
    m_shown->click(text("Skill for app01"));
    EXPECT_EQ(menus(), 1);
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

TEST_F(SettingsPageTest, ACommandStandsInForAShortcutThatCannotBeHad) {
    hotKeyPort.outcome = {HotKeyPort::Registration::HeldByAnother, 0};
    tray.setShown(false);
    show();
    EXPECT_TRUE(shows("Tray"));
    EXPECT_FALSE(shows("Copied"));
    click("Copy the command");
    EXPECT_EQ(copied, QStringList{DesktopGaps::command()});
    EXPECT_TRUE(shows("Copied"));
}

TEST_F(SettingsPageTest, AShortcutOnTheUsersWordIsSetUpAndSwitchedOffByButtons) {
    hotKeyPort.way = QStringLiteral("portal");
    hotKeyPort.outcome = {HotKeyPort::Registration::NotAllowed};
    show();
    EXPECT_TRUE(shows("Copy the command"));
    click("Set up the shortcut");
    EXPECT_EQ(hotKeyPort.isAllowed, true);
    hotKeyPort.become({HotKeyPort::Registration::Registered});
    QCoreApplication::processEvents();
    EXPECT_TRUE(shows("⌥⌘B · active"));
    EXPECT_FALSE(shows("Copy the command"));
    click("Switch the shortcut off");
    EXPECT_EQ(hotKeyPort.isAllowed, false);
    EXPECT_TRUE(shows("Set up the shortcut"));
}

TEST_F(SettingsPageTest, FillsItsWindowAndNothingStandsOutAtItsSides) {
    const QQuickItem& page = show();
    const QSize window = settingsWindowRules().contentSize;
    EXPECT_EQ(QSizeF(page.implicitWidth(), page.implicitHeight()).toSize(), window);
    (void)tests::shownItem(m_shown->window().contentItem(), [&](const QQuickItem& item) {
        const bool isText = !item.property("text").toString().isEmpty();
        if (!isText && item.metaObject()->indexOfSignal("clicked()") < 0) return false;
        const QRectF frame = m_shown->frameOf(item);
        EXPECT_GE(frame.left(), 0) << item.property("text").toString().toStdString();
        EXPECT_LE(frame.right(), window.width()) << item.property("text").toString().toStdString();
        return false;
    });
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

TEST_F(SettingsPageTest, StepperSaysWhatItSteps) {
    show();
    const tests::ReadElement more =
        tests::readElement(m_shown->window(), text("Daily goal, half an hour more"));
    EXPECT_EQ(more.description, text("2 h"));
    click("Ripple ceremony"); // says nothing of the goal
    EXPECT_FALSE(m_shown->announced().contains(text("Daily goal, 2 h")));
    click("Daily goal, half an hour more");
    EXPECT_TRUE(m_shown->announced().contains(text("Daily goal, 2.5 h")));
}

TEST_F(SettingsPageTest, SliderSaysItsNumberWithItsUnit) {
    show();
    QQuickItem* const slider =
        tests::shownItem(m_shown->window().contentItem(), [](const QQuickItem& item) {
            return item.property("name").toString() == text("Auto-pause after 3 min");
        });
    ASSERT_NE(slider, nullptr);
    slider->forceActiveFocus();
    m_shown->press(Qt::Key_Right);
    EXPECT_TRUE(m_shown->announced().contains(text("Auto-pause after 4 min")));
}

TEST_F(SettingsPageTest, ControlsReachTheirRows) {
    show();
    click("Daily goal, half an hour more");
    EXPECT_TRUE(shows("2.5 h"));
    click("Daily goal, half an hour less");
    click("Daily goal, half an hour less");
    EXPECT_TRUE(shows("1.5 h"));
    click("Ripple ceremony");
    EXPECT_EQ(stored("ripple.disabled"), text("true"));
    click("Black out the screen");
    EXPECT_EQ(stored("ceremony.blackout"), text("false"));
    click("Auto mode");
    EXPECT_EQ(stored("auto.enabled"), text("false"));
    click("Start sessions automatically");
    EXPECT_EQ(stored("auto.autostart"), text("true"));
    click("Launch at login");
    EXPECT_TRUE(autostart.registered);
    click("Show the welcome again");
    EXPECT_TRUE(shows("The welcome window is open."));
    click("Export my data");
    EXPECT_TRUE(shows("Revealed in Finder"));
}

TEST_F(SettingsPageTest, SwitchOfTheLoginRowStaysWhereTheDesktopLeavesIt) {
    show();
    autostart.refuses = true;
    click("Launch at login");
    EXPECT_FALSE(control("Launch at login")->property("checked").toBool());
}

TEST_F(SettingsPageTest, ShortcutRowsComeWithTheSwitch) {
    show();
    click("Focus with sessions");
    EXPECT_TRUE(shows("When a session starts"));
    EXPECT_TRUE(shows("When it stops"));
    answer("");
    m_shown->settle();
    EXPECT_FALSE(shows("When it stops"));
    const QString none = text("No Shortcuts found yet. Make one, then flip this off and on.");
    EXPECT_TRUE(m_shown->shows(none));
    EXPECT_EQ(tests::readElement(m_shown->window(), text("Open Shortcuts")).description, none);
    click("Open Shortcuts");
    EXPECT_EQ(foldersOpened, 1);
}

TEST_F(SettingsPageTest, FolderOfShortcutsOpensBesideAFullListToo) {
    show();
    click("Focus with sessions");
    answer("Do Not Disturb off\nDo Not Disturb on\n");
    m_shown->settle();
    EXPECT_FALSE(shows("No Shortcuts found yet. Make one, then flip this off and on."));
    click("Open Shortcuts");
    EXPECT_EQ(foldersOpened, 1);
}

TEST_F(SettingsPageTest, ChosenShortcutThatIsGoneCanBeTakenBackFromAnEmptyList) {
    preferences.setBoolean(text("focus.linked"), true);
    preferences.setString(text("focus.shortcut.start"), text("Long gone"));
    show();
    answer("");
    m_shown->settle();
    EXPECT_TRUE(shows("No Shortcuts found yet. Make one, then flip this off and on."));
    EXPECT_TRUE(shows("Long gone"));
    click("When a session starts");
    click("Choose a Shortcut");
    EXPECT_EQ(stored("focus.shortcut.start").value_or(QString()), QString());
    EXPECT_FALSE(shows("Long gone"));
}

TEST_F(SettingsPageTest, ApplicationsHaveAMenuAndAButtonThatForgets) {
    program();
    rules->loadIfNeeded();
    rules->recordSeen(text("player"), text("Video Player"));
    show();
    EXPECT_TRUE(shows("Video Player"));
    click("Skill for Video Player");
    click("Build");
    EXPECT_EQ(rules->ruling(text("player")), text("building"));
    click("Forget Video Player and its category");
    EXPECT_FALSE(shows("Video Player"));
}

TEST_F(SettingsPageTest, ShortcutThatIsTakenOffersNoOtherKey) {
    hotKeyPort.outcome = {HotKeyPort::Registration::HeldByAnother, 0};
    show();
    EXPECT_TRUE(shows("⌥⌘B unavailable"));
    EXPECT_EQ(controlsOfRow("Global hotkey"), QStringList{text("Copy the command")});
}

TEST_F(SettingsPageTest, ShortcutThatWorksHasNothingToBeClicked) {
    show();
    EXPECT_TRUE(shows("⌥⌘B · active"));
    EXPECT_EQ(controlsOfRow("Global hotkey"), QStringList());
}

TEST_F(SettingsPageTest, EraseAsksFirstWithTheFocusOnCancel) {
    disk.setContent(file("sessions.jsonl"), "{}\n");
    show();
    click("Erase everything");
    EXPECT_TRUE(shows("Erase everything? This cannot be undone."));
    EXPECT_EQ(control("Erase everything"), nullptr);
    EXPECT_TRUE(control("Cancel")->hasActiveFocus());
    click("Cancel");
    EXPECT_TRUE(control("Erase everything")->hasActiveFocus());
    click("Erase everything");
    click("Erase");
    EXPECT_TRUE(shows("Erased all local Vantle data."));
    EXPECT_FALSE(disk.content(file("sessions.jsonl")));
}

TEST_F(SettingsPageTest, QuestionBeforeAnEraseIsSeenAsAWhole) {
    const auto* const scroll = show().property("scroll").value<QQuickItem*>();
    click("Erase everything");
    m_shown->settle();
    EXPECT_EQ(scroll->property("contentY").toDouble() + scroll->height(),
              scroll->property("contentHeight").toDouble());
}

TEST_F(SettingsPageTest, EscapeCancelsTheErase) {
    show();
    click("Erase everything");
    m_shown->press(Qt::Key_Escape);
    EXPECT_FALSE(shows("Erase everything? This cannot be undone."));
    EXPECT_TRUE(control("Erase everything")->hasActiveFocus());
    click("Erase everything");
    QQuickItem* const elsewhere = control("Show the welcome again");
    m_shown->press(Qt::Key_Tab, Qt::ShiftModifier);
    for (int stops = 0; stops < 4 && m_shown->keyboardOwner() != elsewhere; ++stops)
        m_shown->press(Qt::Key_Tab, Qt::ShiftModifier);
    ASSERT_EQ(m_shown->keyboardOwner(), elsewhere);
    m_shown->press(Qt::Key_Escape);
    EXPECT_FALSE(shows("Erase everything? This cannot be undone."));
    EXPECT_TRUE(elsewhere->hasActiveFocus());
}

TEST_F(SettingsPageTest, WhatAnotherWindowChangesIsShownAtOnce) {
    show();
    EXPECT_TRUE(shows("2 h"));
    preferences.setNumber(text("goal.dailyHours"), 4.5);
    preferences.setNumber(text("idle.thresholdSeconds"), 300);
    preferences.setBoolean(text("ripple.disabled"), true);
    m_shown->settle();
    EXPECT_TRUE(shows("4.5 h"));
    EXPECT_TRUE(shows("Auto-pause after 5 min"));
    EXPECT_FALSE(control("Ripple ceremony")->property("checked").toBool());
}

TEST_F(SettingsPageTest, MenusOfFortyApplicationsAreMadeWhenTheyAreOpened) {
    program();
    rules->loadIfNeeded();
    for (int number = 0; number < 40; ++number)
        rules->recordSeen(text("app%1").arg(number), text("Application %1").arg(number));
    show();
    int pickers = 0;
    const auto menus = [&] {
        int made = 0;
        pickers = 0;
        (void)tests::shownItem(m_shown->window().contentItem(), [&](const QQuickItem& item) {
            const QVariant menu = item.property("made");
            if (!menu.isValid()) return false;
            ++pickers;
            if (menu.value<QObject*>() != nullptr) ++made;
            return false;
        });
        return made;
    };
    EXPECT_EQ(menus(), 0);
    EXPECT_GE(pickers, 40);
    click("Skill for Application 7");
    EXPECT_EQ(menus(), 1);
    EXPECT_TRUE(shows("Ignore"));
    click("Ignore");
    EXPECT_EQ(rules->ruling(text("app7")), QString::fromLatin1(AutoRules::ignoreRuling));
}

} // namespace
} // namespace vantle
