// What happens to the active window while it is active.
#include "platform/x11/FrontmostWorld.h"
#include "platform/x11/X11FrontmostApp.h"
#include "support/QtPrinters.h"

namespace vantle {
namespace {

using tests::q;
using tests::Terminal;

class X11FrontmostChangesTest : public tests::FrontmostWorld {};

TEST_F(X11FrontmostChangesTest, ApplicationWhoseLastWindowClosesIsNotInFrontAnyMore) {
    Terminal alpha(q("Alpha"));
    alpha.activate();
    ASSERT_TRUE(comesToFront("alpha"));
    m_told.clear();
    alpha.close();
    EXPECT_TRUE(comesToFront("none")); // asked at once, the server knows
    tests::catchUp(m_connection);
    EXPECT_EQ(m_told.size(), 0U) << "a moment of none is part of every switch";
    m_time.advance(X11FrontmostApp::noneIsBelievedAfter);
    ASSERT_EQ(m_told.size(), 1U);
    EXPECT_EQ(m_told[0], std::nullopt);
}

TEST_F(X11FrontmostChangesTest, NoneOnTheWayFromWindowToWindowIsNotTold) {
    const xcb_window_t alpha = makeWindow("Alpha");
    const xcb_window_t beta = makeWindow("Beta");
    callActive(alpha);
    m_told.clear();
    callActive(XCB_NONE);
    m_time.advance(0.09);
    callActive(beta);
    m_time.advance(10);
    ASSERT_EQ(m_told.size(), 1U);
    EXPECT_EQ(m_told[0], (Application{q("org.example.Beta"), q("Beta")}));
    callActive(XCB_NONE);
    m_time.advance(0.09);
    callActive(beta);
    m_time.advance(10);
    EXPECT_EQ(m_told.size(), 1U);
}

TEST_F(X11FrontmostChangesTest, EmptyWorkspaceIsToldAndSoIsTheReturn) {
    const xcb_window_t alpha = makeWindow("Alpha");
    callActive(alpha);
    m_told.clear();
    callActive(XCB_NONE);
    m_time.advance(0.1);
    callActive(alpha);
    ASSERT_EQ(m_told.size(), 2U);
    EXPECT_EQ(m_told[0], std::nullopt);
    EXPECT_EQ(m_told[1], (Application{q("alpha"), q("Alpha")}));
}

TEST_F(X11FrontmostChangesTest, EndOfTheActiveWindowIsSeenThoughTheWindowManagerSaysNothing) {
    const xcb_window_t alpha = makeWindow("Alpha");
    callActive(alpha);
    m_told.clear();
    xcb_destroy_window(m_client.xcb(), alpha);
    settleClient();
    EXPECT_EQ(frontmostId(), q("none"));
    m_time.advance(0.1);
    ASSERT_EQ(m_told.size(), 1U);
    EXPECT_EQ(m_told[0], std::nullopt);
}

TEST_F(X11FrontmostChangesTest, CardOfOursWithTheKeyboardLeavesInFrontWhatWas) {
    callActive(makeWindow("Alpha"));
    m_told.clear();
    const xcb_window_t card = makeWindow("vantle");
    const std::uint32_t yes = 1;
    xcb_change_window_attributes(m_client.xcb(), card, XCB_CW_OVERRIDE_REDIRECT, &yes);
    xcb_map_window(m_client.xcb(), card);
    xcb_set_input_focus(m_client.xcb(), XCB_INPUT_FOCUS_POINTER_ROOT, card, XCB_CURRENT_TIME);
    callActive(XCB_NONE);
    m_time.advance(10);
    EXPECT_EQ(frontmostId(), q("alpha"));
    EXPECT_EQ(m_told.size(), 0U);
    xcb_destroy_window(m_client.xcb(), card);
    callActive(XCB_NONE);
    m_time.advance(0.1);
    EXPECT_EQ(frontmostId(), q("none"));
    EXPECT_EQ(m_told.size(), 1U);
}

TEST_F(X11FrontmostChangesTest, QuestionIsAnsweredByWhatTheServerKnowsNow) {
    callActive(makeWindow("Alpha"));
    const xcb_window_t beta = makeWindow("Beta");
    set(m_client.root(), atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, beta);
    (void)m_client.reply<xcb_get_input_focus_reply>(xcb_get_input_focus(m_client.xcb()));
    m_told.clear();
    EXPECT_EQ(frontmostId(), q("org.example.Beta")); // before its event is looked at
    tests::catchUp(m_connection);
    EXPECT_EQ(m_told.size(), 1U) << "and the switch is told all the same";
}

TEST_F(X11FrontmostChangesTest, WindowThatBecomesAnotherApplicationWhileItIsActiveIsThatOne) {
    const xcb_window_t window = makeWindow("Alpha");
    callActive(window);
    ASSERT_EQ(frontmostId(), q("alpha"));
    m_told.clear();
    setText(window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, QByteArray("beta\0Beta\0", 10));
    settleClient();
    EXPECT_EQ(frontmostId(), q("org.example.Beta"));
    EXPECT_EQ(m_told.size(), 1U);
    setText(window, atom("_GTK_APPLICATION_ID"), atom("UTF8_STRING"), "alpha");
    settleClient();
    EXPECT_EQ(frontmostId(), q("alpha"));
    EXPECT_EQ(m_told.size(), 2U);
}

TEST_F(X11FrontmostChangesTest, WindowThatIsNotActiveAnyMoreIsNotFollowed) {
    const xcb_window_t former = makeWindow("Alpha");
    callActive(former);
    callActive(makeWindow("Beta"));
    m_told.clear();
    setText(former, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, QByteArray("gamma\0Gamma\0", 12));
    xcb_destroy_window(m_client.xcb(), former);
    settleClient();
    m_time.advance(10);
    EXPECT_EQ(frontmostId(), q("org.example.Beta"));
    EXPECT_EQ(m_told.size(), 0U);
}

} // namespace
} // namespace vantle
