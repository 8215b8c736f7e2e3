#include "platform/x11/X11ScreenPower.h"

#include "fakes/VirtualTime.h"
#include "platform/x11/OwnServer.h"
#include "support/Await.h"
#include "support/ToldPower.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>

namespace vantle {
namespace {

using tests::catchUp;
using tests::ToldPower;

class X11ScreenPowerTest : public testing::Test {
protected:
    ~X11ScreenPowerTest() override { (void)tests::run(QStringLiteral("xset s reset")); }

    fakes::VirtualTime m_time;
    X11Connection m_connection;
};

TEST_F(X11ScreenPowerTest, ScreenSaverTellsOnceWhenItShowsAndOnceWhenItGoes) {
    X11ScreenPower power(m_connection, m_time, {});
    ToldPower told(power);
    EXPECT_FALSE(power.asleep());

    ASSERT_TRUE(tests::run(QStringLiteral("xset s activate")));
    catchUp(m_connection);
    EXPECT_TRUE(power.asleep());
    EXPECT_EQ(told.slept, 1);
    EXPECT_EQ(told.woke, 0);

    ASSERT_TRUE(tests::run(QStringLiteral("xset s reset")));
    catchUp(m_connection);
    EXPECT_FALSE(power.asleep());
    EXPECT_EQ(told.slept, 1);
    EXPECT_EQ(told.woke, 1);
}

TEST_F(X11ScreenPowerTest, InputWakesTheScreenSaverOnce) {
    X11ScreenPower power(m_connection, m_time, {});
    ToldPower told(power);
    ASSERT_TRUE(tests::run(QStringLiteral("xset s activate")));
    ASSERT_TRUE(tests::run(QStringLiteral("xdotool mousemove_relative 5 5 key shift")));
    catchUp(m_connection);
    EXPECT_EQ(told.slept, 1);
    EXPECT_EQ(told.woke, 1);
}

TEST_F(X11ScreenPowerTest, ScreenSaverThatShowsAlreadyMeansAsleepFromTheStart) {
    ASSERT_TRUE(tests::run(QStringLiteral("xset s activate")));
    X11ScreenPower power(m_connection, m_time, {});
    ToldPower told(power);
    EXPECT_TRUE(power.asleep());
    ASSERT_TRUE(tests::run(QStringLiteral("xset s reset")));
    catchUp(m_connection);
    EXPECT_EQ(told.slept, 0);
    EXPECT_EQ(told.woke, 1);
}

TEST_F(X11ScreenPowerTest, DarkDisplayIsNoticedWithinFiveSeconds) {
    bool off = false;
    X11ScreenPower power(m_connection, m_time, [&] { return off; });
    ToldPower told(power);
    m_time.advance(60);
    EXPECT_EQ(told.slept, 0);
    off = true;
    m_time.advance(5);
    EXPECT_TRUE(power.asleep());
    m_time.advance(60);
    EXPECT_EQ(told.slept, 1);
    off = false;
    m_time.advance(5);
    EXPECT_FALSE(power.asleep());
    EXPECT_EQ(told.woke, 1);
}

TEST_F(X11ScreenPowerTest, DarkDisplayUnderAScreenSaverIsOneSleep) {
    bool off = false;
    X11ScreenPower power(m_connection, m_time, [&] { return off; });
    ToldPower told(power);
    ASSERT_TRUE(tests::run(QStringLiteral("xset s activate")));
    catchUp(m_connection);
    off = true;
    m_time.advance(5);
    ASSERT_TRUE(tests::run(QStringLiteral("xset s reset")));
    catchUp(m_connection);
    EXPECT_TRUE(power.asleep());
    EXPECT_EQ(told.woke, 0);
    off = false;
    m_time.advance(5);
    EXPECT_EQ(told.slept, 1);
    EXPECT_EQ(told.woke, 1);
}

/// Says the state of the screen as xscreensaver does: an atom, or 0, and when that began.
void sayStatus(X11Connection& client, std::string_view state) {
    const auto atomOf = [&client](std::string_view name) {
        const auto length = static_cast<std::uint16_t>(name.size());
        return client
            .reply<xcb_intern_atom_reply>(xcb_intern_atom(client.xcb(), 0, length, name.data()))
            ->atom;
    };
    const std::array<std::uint32_t, 2> status{state.empty() ? 0U : atomOf(state), 1'700'000'000U};
    EXPECT_EQ(client.check(xcb_change_property_checked(
                  client.xcb(), XCB_PROP_MODE_REPLACE, client.root(), atomOf("_SCREENSAVER_STATUS"),
                  XCB_ATOM_INTEGER, 32, status.size(), status.data())),
              0);
}

TEST_F(X11ScreenPowerTest, BlankedOrLockedScreenOfXscreensaverIsASleep) {
    tests::OwnServer server;
    X11Connection connection(server.display());
    X11Connection locker(server.display());
    X11ScreenPower power(connection, m_time, {});
    ToldPower told(power);
    sayStatus(locker, "");
    catchUp(connection);
    EXPECT_FALSE(power.asleep());
    for (const std::string_view state : {"BLANK", "LOCK"}) {
        sayStatus(locker, state);
        catchUp(connection);
        EXPECT_TRUE(power.asleep());
    }
    EXPECT_TRUE(X11ScreenPower(connection, m_time, {}).asleep()) << "from the start";
    EXPECT_EQ(told.slept, 1);
    sayStatus(locker, "");
    catchUp(connection);
    EXPECT_FALSE(power.asleep());
    EXPECT_EQ(told.woke, 1);
}

TEST_F(X11ScreenPowerTest, EventsThatOthersSelectedOnTheRootWindowStillCome) {
    tests::OwnServer server;
    X11Connection connection(server.display());
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection.xcb(), connection.root(), XCB_CW_EVENT_MASK, &mask);
    const X11ScreenPower power(connection, m_time, {});
    const auto root = connection.reply<xcb_get_window_attributes_reply>(
        xcb_get_window_attributes(connection.xcb(), connection.root()));
    EXPECT_EQ(root->your_event_mask,
              XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE);
}

TEST_F(X11ScreenPowerTest, NothingIsPolledWithoutPowerManagement) {
    tests::OwnServer server({QStringLiteral("-extension"), QStringLiteral("DPMS")});
    X11Connection connection(server.display());
    const auto powerManagement = X11ScreenPower::powerManagement(connection);
    EXPECT_FALSE(powerManagement);
    const X11ScreenPower power(connection, m_time, powerManagement);
    EXPECT_EQ(m_time.timerCount(), 0U);
}

TEST_F(X11ScreenPowerTest, MissingScreenSaverIsNeverAsleep) {
    tests::OwnServer server({QStringLiteral("-extension"), QStringLiteral("MIT-SCREEN-SAVER")});
    X11Connection connection(server.display());
    const X11ScreenPower power(connection, m_time, {});
    EXPECT_FALSE(power.asleep());
}

TEST_F(X11ScreenPowerTest, MissingServerIsNeverAsleep) {
    X11Connection connection(":4711");
    const X11ScreenPower power(connection, m_time, X11ScreenPower::powerManagement(connection));
    EXPECT_FALSE(power.asleep());
    EXPECT_EQ(m_time.timerCount(), 0U);
}

TEST_F(X11ScreenPowerTest, ServerThatGoesAwayWakesTheScreens) {
    tests::OwnServer server;
    X11Connection connection(server.display());
    X11ScreenPower power(connection, m_time, [] { return true; });
    ToldPower told(power);
    EXPECT_TRUE(power.asleep());
    server.stop();
    EXPECT_TRUE(tests::await([&] { return told.woke == 1; }));
    EXPECT_FALSE(power.asleep());
    EXPECT_EQ(m_time.timerCount(), 0U);
}

} // namespace
} // namespace vantle
