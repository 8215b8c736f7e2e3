// Where the parts of the settings stand, and how their texts are set.
#include "support/ShownView.h"
#include "support/Text.h"
#include "surfaces/settings/SettingsWindow.h"
#include "surfaces/settings/SettingsWorld.h"
#include "tracking/Settings.h"

#include <QFont>
#include <QFontMetricsF>

#include <cerrno>

namespace vantle {
namespace {

using tests::text;

class SettingsLayoutTest : public testing::Test, protected tests::SettingsWorld {
protected:
    QQuickItem& show() {
        open();
        return m_shown.emplace().show("Settings/SettingsPage",
                                      {{text("model"), QVariant::fromValue(&*view)}},
                                      settingsWindowRules().contentSize);
    }
    [[nodiscard]] QQuickItem* item(const QString& words) {
        return tests::shownItem(m_shown->window().contentItem(), [&](const QQuickItem& one) {
            return one.property("text").toString().startsWith(words);
        });
    }
    /// Whether the text has the button at its side.
    [[nodiscard]] bool areBeside(const char* words, const char* button) {
        const QQuickItem* const caption = item(text(words));
        const QQuickItem* const control = m_shown->control(text(button));
        if (caption == nullptr || control == nullptr) {
            ADD_FAILURE() << words << " / " << button;
            return true;
        }
        const QRectF one = m_shown->frameOf(*caption);
        const QRectF other = m_shown->frameOf(*control);
        return one.top() < other.bottom() && other.top() < one.bottom();
    }

    std::optional<tests::ShownView> m_shown;
};

TEST_F(SettingsLayoutTest, RowOfCallsSaysWhatADesktopDoesNotTellOnceItIsOn) {
    idleInhibition.setCanTell(false);
    show();
    QQuickItem* const row = m_shown->control(text("Calls and videos count as being here"));
    ASSERT_NE(row, nullptr);
    const char* const advice = "This desktop doesn't tell apps most of what keeps the screen awake";
    EXPECT_EQ(item(text(advice)), nullptr);
    m_shown->click(row);
    EXPECT_TRUE(settings::callsCount.read(preferences));
    idleInhibition.setFollowed(true); // as the program does then
    m_shown->settle();
    QQuickItem* const said = item(text(advice));
    ASSERT_NE(said, nullptr);
    const QRectF lines = m_shown->frameOf(*said);
    EXPECT_GE(lines.top(), m_shown->frameOf(*item(text("While an app keeps"))).bottom());
    EXPECT_LE(lines.bottom(), m_shown->frameOf(*item(text("Daily goal"))).top());
    EXPECT_EQ(m_shown->cutTexts(), QStringList());
    EXPECT_EQ(m_shown->overlappingTexts(), QStringList());
}

TEST_F(SettingsLayoutTest, CommandIsOneLineInAWellThatScrollsUnderTheArrowKeys) {
    hotKeyPort.outcome = {HotKeyPort::Registration::HeldByAnother, 0};
    show();
    QQuickItem* const command = item(DesktopGaps::command());
    ASSERT_NE(command, nullptr);
    EXPECT_EQ(command->property("lineCount").toInt(), 1);
    // By its letters: some families of one width do not say so.
    const QFontMetricsF letters(command->property("font").value<QFont>());
    EXPECT_EQ(letters.horizontalAdvance(u'i'), letters.horizontalAdvance(u'W'));
    const QQuickItem* const copy = m_shown->control(text("Copy the command"));
    ASSERT_NE(copy, nullptr);
    m_shown->bringIntoSight(*copy);
    const QRectF button = m_shown->frameOf(*copy);
    EXPECT_NEAR(m_shown->frameOf(*command).center().y(), button.center().y(), 1);

    // All of it can be read: the end comes into sight by the keyboard.
    const double start = m_shown->frameOf(*command).left();
    QQuickItem* stop = command;
    while (stop != nullptr && !stop->activeFocusOnTab())
        stop = stop->parentItem();
    ASSERT_NE(stop, nullptr);
    stop->forceActiveFocus(Qt::TabFocusReason);
    m_shown->press(Qt::Key_Right);
    EXPECT_LT(m_shown->frameOf(*command).left(), start);
    m_shown->press(Qt::Key_End);
    EXPECT_LE(m_shown->frameOf(*command).right(), button.left());
    m_shown->press(Qt::Key_Home);
    EXPECT_EQ(m_shown->frameOf(*command).left(), start);
}

TEST_F(SettingsLayoutTest, FailureIsAsLightAsItsRow) {
    disk.setContent(file("sessions.jsonl"), "{}\n");
    files.fail(fakes::FaultyFileSystem::Operation::Remove, text("sessions.jsonl"), EACCES);
    show();
    m_shown->click(text("Erase everything"));
    m_shown->click(text("Erase"));
    const QQuickItem* const failure = item(text("Some local data could not be erased"));
    ASSERT_NE(failure, nullptr);
    EXPECT_EQ(failure->property("font").value<QFont>().weight(), QFont::Normal);
}

TEST_F(SettingsLayoutTest, NoCaptionStandsBesideAButton) {
    preferences.setBoolean(text("focus.linked"), true);
    show();
    answer("");
    m_shown->settle();
    EXPECT_FALSE(areBeside("Your whole log", "Export my data"));
    EXPECT_FALSE(areBeside("No Shortcuts found yet", "Open Shortcuts"));
    EXPECT_FALSE(areBeside("Deletes all local", "Erase everything"));
    EXPECT_FALSE(areBeside("Opens the welcome again", "Show the welcome again"));
}

} // namespace
} // namespace vantle
