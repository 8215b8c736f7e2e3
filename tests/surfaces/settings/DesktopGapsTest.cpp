#include "support/Text.h"
#include "surfaces/settings/SettingsWorld.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::text;

class DesktopGapsTest : public testing::Test, protected tests::SettingsWorld {};

TEST_F(DesktopGapsTest, WhereNothingIsMissingNothingIsSaid) {
    const SettingsView& settings = open();
    EXPECT_EQ(view->gaps()->hotKeyAdvice(), QString());
    EXPECT_EQ(view->gaps()->trayAdvice(), QString());
    EXPECT_EQ(settings.hotKeyText(), text("⌥⌘B · active"));
}

TEST_F(DesktopGapsTest, AShortcutOfSomebodyElseLeavesTheCommand) {
    hotKeyPort.outcome = {HotKeyPort::Registration::HeldByAnother, 0};
    open();
    EXPECT_EQ(view->gaps()->hotKeyAdvice(),
              text("Another key does as well. In your desktop's keyboard settings, bind one to "
                   "this command:"));
    int times = 0;
    QObject::connect(view->gaps(), &DesktopGaps::hotKeyChanged, [&] { ++times; });
    hotKeyPort.outcome = {HotKeyPort::Registration::Registered, 0};
    model->hotKey().registerHotKey();
    EXPECT_GT(times, 0);
    EXPECT_EQ(view->gaps()->hotKeyAdvice(), QString());
}

TEST_F(DesktopGapsTest, AShortcutThatIsNotHeardEverywhereIsNotCalledActive) {
    hotKeyPort.isHeardEverywhere = false;
    const SettingsView& settings = open();
    EXPECT_FALSE(settings.isHotKeyActive());
    EXPECT_EQ(settings.hotKeyText(), text("⌥⌘B · only over some apps"));
    EXPECT_EQ(settings.hotKeyFailure(), QString());
    EXPECT_TRUE(view->gaps()->hotKeyAdvice().startsWith(text("In a Wayland session")));
}

TEST_F(DesktopGapsTest, TheCommandCanBeCopied) {
    open();
    EXPECT_FALSE(view->gaps()->commandCopied());
    view->gaps()->copyCommand();
    EXPECT_TRUE(view->gaps()->commandCopied());
    EXPECT_EQ(copied, QStringList{DesktopGaps::command()});
}

TEST_F(DesktopGapsTest, WithoutATrayTheWayToThePanelIsSaidUntilThereIsOne) {
    tray.setShown(false);
    open();
    EXPECT_EQ(view->gaps()->trayAdvice(),
              text("This desktop shows no tray, so there is no icon to click. Open Vantle from "
                   "your applications once more, and its panel comes up."));
    int times = 0;
    QObject::connect(view->gaps(), &DesktopGaps::trayChanged, [&] { ++times; });
    tray.setShown(true);
    EXPECT_EQ(times, 1);
    EXPECT_EQ(view->gaps()->trayAdvice(), QString());
}

} // namespace
} // namespace vantle
