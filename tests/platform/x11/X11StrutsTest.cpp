#include "platform/x11/X11Struts.h"

#include "platform/x11/OwnServer.h"
#include "support/Await.h"

#include <gtest/gtest.h>

#include <memory>

namespace vantle {
namespace {

using Numbers = std::vector<std::uint32_t>;

/// A server of 1280 x 1024 without a window manager, and the bars of another program.
class X11StrutsTest : public testing::Test {
protected:
    X11StrutsTest() {
        QObject::connect(&m_struts, &ReservedStrips::changed, [this] { ++m_changes; });
    }

    xcb_window_t makeWindow(xcb_window_t parent = XCB_NONE) {
        const xcb_window_t window = xcb_generate_id(m_bars.xcb());
        xcb_create_window(m_bars.xcb(), XCB_COPY_FROM_PARENT, window,
                          parent == XCB_NONE ? m_bars.root() : parent, 0, 0, 100, 30, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_map_window(m_bars.xcb(), window);
        return window;
    }
    xcb_window_t makeBar(const char* property, const Numbers& numbers) {
        const xcb_window_t window = makeWindow();
        set(window, property, XCB_ATOM_CARDINAL, numbers);
        return window;
    }
    void set(xcb_window_t window, const QByteArray& name, xcb_atom_t type, const Numbers& values) {
        const auto atom = m_bars.reply<xcb_intern_atom_reply>(xcb_intern_atom(
            m_bars.xcb(), 0, static_cast<std::uint16_t>(name.size()), name.constData()));
        xcb_change_property(m_bars.xcb(), XCB_PROP_MODE_REPLACE, window, atom->atom, type, 32,
                            static_cast<std::uint32_t>(values.size()), values.data());
        settle();
    }
    void settle() {
        tests::catchUp(m_bars);
        tests::catchUp(m_x11);
    }

    tests::OwnServer m_server{
        {QStringLiteral("-screen"), QStringLiteral("0"), QStringLiteral("1280x1024x24")}};
    X11Connection m_bars{m_server.display()};
    X11Connection m_x11{m_server.display()};
    X11Struts m_struts{m_x11};
    int m_changes = 0;
};

using Strips = std::vector<ReservedStrip>;

TEST_F(X11StrutsTest, DesktopWithoutBarsReservesNothing) {
    makeWindow();
    settle();
    EXPECT_EQ(m_struts.all(), Strips());
}

TEST_F(X11StrutsTest, PartOfEachEdgeIsTold) {
    makeBar("_NET_WM_STRUT_PARTIAL", {0, 0, 28, 0, 0, 0, 0, 0, 100, 699, 0, 0});
    EXPECT_EQ(m_struts.all(), (Strips{{Qt::TopEdge, {100, 0, 600, 28}}}));
    makeBar("_NET_WM_STRUT_PARTIAL", {40, 50, 0, 60, 0, 99, 10, 109, 0, 0, 200, 299});
    EXPECT_EQ(m_struts.all(), (Strips{{Qt::TopEdge, {100, 0, 600, 28}},
                                      {Qt::LeftEdge, {0, 0, 40, 100}},
                                      {Qt::RightEdge, {1230, 10, 50, 100}},
                                      {Qt::BottomEdge, {200, 964, 100, 60}}}));
}

TEST_F(X11StrutsTest, OlderFormReservesTheWholeEdge) {
    makeBar("_NET_WM_STRUT", {0, 0, 0, 40});
    EXPECT_EQ(m_struts.all(), (Strips{{Qt::BottomEdge, {0, 984, 1280, 40}}}));
    makeBar("_NET_WM_STRUT", {30, 0, 0, 0});
    EXPECT_EQ(m_struts.all().back(), (ReservedStrip{Qt::LeftEdge, {0, 0, 30, 1024}}));
}

TEST_F(X11StrutsTest, NumbersThatLeaveTheDesktopAreLimitedToIt) {
    constexpr std::uint32_t kMost = 0x7FFFFFFF;
    constexpr std::uint32_t kLeast = 0x80000000;
    const xcb_window_t bar =
        makeBar("_NET_WM_STRUT_PARTIAL", {0, 0, 28, 0, 0, 0, 0, 0, kLeast, kMost, 0, 0});
    EXPECT_EQ(m_struts.all(), (Strips{{Qt::TopEdge, QRect(0, 0, 1280, 28)}}));
    set(bar, "_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL,
        {kMost, 0, 0, 0, 100, 199, 0, 0, 0, 0, 0, 0});
    EXPECT_EQ(m_struts.all(), (Strips{{Qt::LeftEdge, QRect(0, 100, 1280, 100)}}));
    set(bar, "_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL,
        {0, kLeast, 28, 0, 0, kMost, 0, 0, 1280, kMost, 0, 0});
    EXPECT_EQ(m_struts.all(), Strips()) << "negative, and beside the desktop";
}

TEST_F(X11StrutsTest, ManagedBarInItsFrameIsFoundByTheListOfWindows) {
    const xcb_window_t bar = makeWindow(makeWindow());
    set(bar, "_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL, {0, 0, 28, 0, 0, 0, 0, 0, 0, 1279, 0, 0});
    EXPECT_EQ(m_struts.all(), Strips());
    set(m_bars.root(), "_NET_CLIENT_LIST", XCB_ATOM_WINDOW, {bar});
    EXPECT_EQ(m_struts.all(), (Strips{{Qt::TopEdge, {0, 0, 1280, 28}}}));
    EXPECT_EQ(m_changes, 1);
    set(m_bars.root(), "_NET_CLIENT_LIST", XCB_ATOM_WINDOW, {bar, makeWindow()});
    EXPECT_EQ(m_changes, 1) << "another window is no bar";
}

TEST_F(X11StrutsTest, BarThatIsHiddenWidenedOrGoneIsFollowed) {
    const xcb_window_t bar = makeBar("_NET_WM_STRUT", {0, 0, 28, 0});
    ASSERT_EQ(m_struts.all().size(), 1U);
    set(bar, "_NET_WM_STRUT", XCB_ATOM_CARDINAL, {0, 0, 56, 0});
    EXPECT_EQ(m_changes, 1);
    EXPECT_EQ(m_struts.all(), (Strips{{Qt::TopEdge, {0, 0, 1280, 56}}}));
    xcb_unmap_window(m_bars.xcb(), bar);
    settle();
    EXPECT_EQ(m_changes, 2);
    EXPECT_EQ(m_struts.all(), Strips());
    xcb_map_window(m_bars.xcb(), bar);
    settle();
    EXPECT_EQ(m_changes, 3);
    xcb_destroy_window(m_bars.xcb(), bar);
    settle();
    EXPECT_EQ(m_changes, 4);
    EXPECT_EQ(m_struts.all(), Strips());
}

TEST_F(X11StrutsTest, ServerThatIsGoneReservesNothing) {
    makeBar("_NET_WM_STRUT", {0, 0, 28, 0});
    m_server.stop();
    EXPECT_EQ(m_struts.all(), Strips());
}

} // namespace
} // namespace vantle
