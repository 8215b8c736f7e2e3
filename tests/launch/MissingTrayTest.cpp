#include "launch/MissingTray.h"

#include "fakes/FakeTrayItem.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "support/QtPrinters.h"
#include "tracking/Settings.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace vantle {
namespace {

class MissingTrayTest : public testing::Test {
protected:
    void openPanel() {
        m_missing.panelOpened();
        m_time.advance(3);
    }

    fakes::VirtualTime m_time;
    fakes::MemoryPreferences m_preferences;
    fakes::FakeTrayItem m_tray;
    bool m_canBeTold = true;
    QStringList m_told;
    MissingTray m_missing{{m_time, m_preferences, m_tray, [this] { return m_canBeTold; },
                           [this](const QString& text) { m_told << text; }}};
};

TEST_F(MissingTrayTest, IsToldOfOnce) {
    m_tray.setShown(false);
    openPanel();
    EXPECT_EQ(m_told, QStringList{QStringLiteral(
                          "No tray here: open Vantle again to get this panel back")});
    openPanel();
    EXPECT_EQ(m_told.size(), 1);
}

TEST_F(MissingTrayTest, IsNotToldOfWhereThereIsOne) {
    openPanel();
    EXPECT_EQ(m_told, QStringList());
    EXPECT_FALSE(settings::trayAbsenceTold.read(m_preferences));
}

TEST_F(MissingTrayTest, ATrayThatShowsTheItemAMomentLaterIsNotMissed) {
    m_tray.setShown(false);
    m_missing.panelOpened();
    m_time.advance(1);
    m_tray.setShown(true);
    m_time.advance(2);
    EXPECT_EQ(m_told, QStringList());
}

TEST_F(MissingTrayTest, WaitsForTheNextTimeWhileThePanelIsClosedOrSaysSomethingElse) {
    m_tray.setShown(false);
    m_canBeTold = false;
    openPanel();
    EXPECT_EQ(m_told, QStringList());
    m_canBeTold = true;
    openPanel();
    EXPECT_EQ(m_told.size(), 1);
}

} // namespace
} // namespace vantle
