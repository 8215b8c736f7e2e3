#include "platform/x11/X11Connection.h"

#include "platform/x11/OwnServer.h"
#include "support/Await.h"

#include <gtest/gtest.h>

#include <optional>

namespace vantle {
namespace {

using tests::await;
using tests::catchUp;
using tests::OwnServer;

/// Makes the server tell of a change of a property of the root window.
void touchRoot(X11Connection& connection) {
    const std::uint32_t value = 1;
    xcb_change_property(connection.xcb(), XCB_PROP_MODE_REPLACE, connection.root(),
                        XCB_ATOM_CUT_BUFFER0, XCB_ATOM_CARDINAL, 32, 1, &value);
}

class X11ConnectionEvents : public testing::Test {
protected:
    X11ConnectionEvents() {
        const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_connection.xcb(), m_connection.root(), XCB_CW_EVENT_MASK,
                                     &mask);
    }

    X11Connection m_connection;
};

TEST(X11Connection, MissingServerIsAnAnswer) {
    X11Connection connection(":4711");
    EXPECT_FALSE(connection.isAlive());
    EXPECT_NE(connection.failure(), 0);
    EXPECT_EQ(connection.root(), 0U);
    EXPECT_EQ(connection.reply<xcb_get_input_focus_reply>(xcb_get_input_focus(connection.xcb())),
              nullptr);
    EXPECT_EQ(connection.check(xcb_no_operation_checked(connection.xcb())), X11Connection::kBroken);
}

TEST(X11Connection, GoesToTheServerOfThatName) {
    OwnServer server(
        {QStringLiteral("-screen"), QStringLiteral("0"), QStringLiteral("333x222x24")});
    X11Connection connection(server.display());
    ASSERT_TRUE(connection.isAlive());
    const auto geometry = connection.reply<xcb_get_geometry_reply>(
        xcb_get_geometry(connection.xcb(), connection.root()));
    ASSERT_NE(geometry, nullptr);
    EXPECT_EQ(geometry->width, 333);
}

TEST(X11Connection, ServerThatGoesAwayIsToldOnce) {
    OwnServer server;
    X11Connection connection(server.display());
    ASSERT_TRUE(connection.isAlive());
    int told = 0;
    QObject::connect(&connection, &X11Connection::broken, [&] { ++told; });

    server.stop();

    ASSERT_TRUE(await([&] { return told > 0; }));
    tests::runFor(50);
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(connection.isAlive());
    EXPECT_NE(connection.failure(), 0);
}

TEST(X11Connection, ServerFoundGoneByARequestIsToldFromTheEventLoop) {
    OwnServer server;
    X11Connection connection(server.display());
    ASSERT_TRUE(connection.isAlive());
    int told = 0;
    QObject::connect(&connection, &X11Connection::broken, [&] { ++told; });
    server.stop();

    EXPECT_EQ(connection.check(xcb_no_operation_checked(connection.xcb())), X11Connection::kBroken);
    EXPECT_EQ(told, 0);
    ASSERT_TRUE(await([&] { return told > 0; }));
    tests::runFor(50);
    EXPECT_EQ(told, 1);
}

TEST(X11Connection, RefusedRequestGivesTheServersCode) {
    X11Connection connection;
    constexpr int kBadWindow = 3;
    EXPECT_EQ(connection.check(xcb_map_window_checked(connection.xcb(), 0x1fffffff)), kBadWindow);
    EXPECT_TRUE(connection.isAlive());
}

TEST_F(X11ConnectionEvents, EventReadWhileWaitingForAnAnswerIsDispatchedAfterwards) {
    int seen = 0;
    const auto subscription =
        m_connection.subscribe(XCB_PROPERTY_NOTIFY, [&](const auto&) { ++seen; });
    touchRoot(m_connection);
    (void)m_connection.reply<xcb_get_input_focus_reply>(xcb_get_input_focus(m_connection.xcb()));
    EXPECT_EQ(seen, 0) << "dispatched inside the request";
    EXPECT_TRUE(await([&] { return seen == 1; }));
}

TEST_F(X11ConnectionEvents, EventReadByARequestInsideAHandlerIsDispatched) {
    int seen = 0;
    const auto subscription = m_connection.subscribe(XCB_PROPERTY_NOTIFY, [&](const auto&) {
        if (++seen > 1) return;
        touchRoot(m_connection);
        (void)m_connection.reply<xcb_get_input_focus_reply>(
            xcb_get_input_focus(m_connection.xcb()));
        EXPECT_EQ(seen, 1) << "dispatched inside the handler";
    });
    touchRoot(m_connection);
    catchUp(m_connection);
    EXPECT_TRUE(await([&] { return seen == 2; }));
}

TEST_F(X11ConnectionEvents, OtherTypesDontReachASubscriber) {
    int wrong = 0;
    int right = 0;
    const auto keys = m_connection.subscribe(XCB_KEY_PRESS, [&](const auto&) { ++wrong; });
    const auto properties =
        m_connection.subscribe(XCB_PROPERTY_NOTIFY, [&](const auto&) { ++right; });
    touchRoot(m_connection);
    catchUp(m_connection);
    EXPECT_EQ(right, 1);
    EXPECT_EQ(wrong, 0);
}

TEST_F(X11ConnectionEvents, SubscriptionMayEndInsideAnyHandler) {
    int own = 0;
    int later = 0;
    std::optional<X11Connection::Subscription> first;
    std::optional<X11Connection::Subscription> second;
    first = m_connection.subscribe(XCB_PROPERTY_NOTIFY, [&](const auto&) {
        ++own;
        first.reset();
        second.reset();
    });
    second = m_connection.subscribe(XCB_PROPERTY_NOTIFY, [&](const auto&) { ++later; });
    touchRoot(m_connection);
    touchRoot(m_connection);
    catchUp(m_connection);
    EXPECT_EQ(own, 1);
    EXPECT_EQ(later, 0);
}

TEST(X11Connection, SubscriptionMayOutliveIt) {
    std::optional<X11Connection> connection(std::in_place);
    auto subscription = connection->subscribe(XCB_KEY_PRESS, [](const auto&) {});
    connection.reset();
    subscription = {};
}

} // namespace
} // namespace vantle
