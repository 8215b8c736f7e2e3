// Help that the desktop has for what it does not tell, in the row where the user looks for it.
#include "support/ShownView.h"
#include "support/Text.h"
#include "surfaces/settings/SettingsWindow.h"
#include "surfaces/settings/SettingsWorld.h"

#include <gtest/gtest.h>

#include <optional>

namespace vantle {
namespace {

using tests::text;

class SettingsHelpTest : public testing::Test, protected tests::SettingsWorld {
protected:
    void show() {
        open();
        m_shown.emplace().show("Settings/SettingsPage",
                               {{text("model"), QVariant::fromValue(&*view)}},
                               settingsWindowRules().contentSize);
    }
    [[nodiscard]] bool shows(const char* words) { return m_shown->shows(text(words)); }
    [[nodiscard]] QQuickItem* control(const char* name) { return m_shown->control(text(name)); }

    std::optional<tests::ShownView> m_shown;
};

TEST_F(SettingsHelpTest, OnePressSwitchesOnTheExtensionThatLetsAutoModeSee) {
    const char* const name = "Switch the extension on";
    show();
    EXPECT_EQ(control(name), nullptr);
    frontmost.setCoverage(AppCoverage::None);
    frontmost.setHelp(FrontmostHelp::Offered);
    QCoreApplication::processEvents();
    EXPECT_TRUE(shows("This desktop doesn't tell Vantle which app is in front, so Auto mode has "
                      "nothing to go by. A small GNOME extension came with Vantle: it tells Vantle "
                      "the name of the app in front, and nothing else."));
    QQuickItem* const button = control(name);
    ASSERT_NE(button, nullptr);
    button->forceActiveFocus(Qt::TabFocusReason);
    m_shown->press(Qt::Key_Space);
    EXPECT_EQ(frontmost.accepted, 1);
    frontmost.setHelp(FrontmostHelp::None);
    frontmost.setCoverage(AppCoverage::All);
    QCoreApplication::processEvents();
    EXPECT_EQ(control("Done"), button) << "the keyboard stays where it was";
    EXPECT_EQ(control("Done")->window()->activeFocusItem(), button);
    EXPECT_EQ(row("Auto mode").gap(), QString());
}

} // namespace
} // namespace vantle
