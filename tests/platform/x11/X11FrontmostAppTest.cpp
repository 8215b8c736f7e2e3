#include "platform/x11/X11FrontmostApp.h"

#include "platform/x11/FrontmostWorld.h"
#include "support/QtPrinters.h"

#include <QElapsedTimer>
#include <QSysInfo>

#include <algorithm>

namespace vantle {
namespace {

using tests::q;
using tests::Terminal;

class X11FrontmostAppTest : public tests::FrontmostWorld {};

TEST_F(X11FrontmostAppTest, EachSwitchBetweenApplicationsIsToldOnceByEntry) {
    const Terminal alpha(q("Alpha"));
    const Terminal beta(q("Beta"));
    alpha.activate();
    ASSERT_TRUE(comesToFront("alpha"));
    m_told.clear();
    for (int i = 0; i < 3; ++i) {
        beta.activate();
        ASSERT_TRUE(comesToFront("org.example.Beta"));
        alpha.activate();
        ASSERT_TRUE(comesToFront("alpha"));
    }
    tests::runFor(100);
    ASSERT_EQ(m_told.size(), 6U);
    EXPECT_EQ(m_told[0], (Application{q("org.example.Beta"), q("Beta")}));
    EXPECT_EQ(m_told[1], (Application{q("alpha"), q("Alpha")}));
}

TEST_F(X11FrontmostAppTest, SwitchBetweenWindowsOfOneApplicationIsNone) {
    const Terminal first(q("Alpha"));
    first.activate();
    ASSERT_TRUE(comesToFront("alpha"));
    m_told.clear();
    QProcess second;
    second.start(q("xterm"), {q("-class"), q("Alpha"), q("-name"), q("second")});
    EXPECT_TRUE(tests::await([&] {
        return !tests::outputOf(q("xdotool search --onlyvisible --classname second")).isEmpty();
    }));
    EXPECT_TRUE(tests::run(q("xdotool search --classname second windowactivate --sync")));
    tests::runFor(100);
    EXPECT_EQ(m_told.size(), 0U);
    second.kill();
    second.waitForFinished();
}

TEST_F(X11FrontmostAppTest, ApplicationInFrontAtTheStartIsKnown) {
    const Terminal alpha(q("Alpha"));
    alpha.activate();
    X11Connection connection;
    X11FrontmostApp late(connection, m_time,
                         [&](const auto& h) { return m_applications->identify(h); });
    EXPECT_EQ(late.frontmost(), (Application{q("alpha"), q("Alpha")}));
}

TEST_F(X11FrontmostAppTest, OwnWindowsAreThisProgramWhateverTheirClass) {
    const xcb_window_t window = makeWindow("Alpha");
    setText(window, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING,
            QSysInfo::machineHostName().toLocal8Bit());
    callActive(window);
    EXPECT_EQ(m_frontmost.frontmost(), (Application{q("local.vantle.Vantle"), q("Vantle")}));
}

TEST_F(X11FrontmostAppTest, OwnWindowsAreKnownByTheirClassWhereTheProcessCannotBeTold) {
    callActive(makeWindow("vantle"));
    EXPECT_EQ(m_frontmost.frontmost(), (Application{q("local.vantle.Vantle"), q("Vantle")}));
    EXPECT_TRUE(m_resolved.empty());
}

TEST_F(X11FrontmostAppTest, ProcessIsTheOneThatTheServerKnowsNotTheNumberInASandbox) {
    const Terminal alpha(q("Alpha"));
    const Terminal beta(q("Beta"));
    beta.activate();
    ASSERT_TRUE(comesToFront("org.example.Beta"));
    ASSERT_TRUE(tests::run(q("xprop -f _NET_WM_PID 32c -set _NET_WM_PID 2 -id ") + alpha.window()));
    m_resolved.clear();
    alpha.activate();
    ASSERT_TRUE(comesToFront("alpha"));
    ASSERT_FALSE(m_resolved.empty());
    EXPECT_EQ(m_resolved.back().processId, alpha.processId());
}

TEST_F(X11FrontmostAppTest, WithoutTheServersWordTheWindowsOwnCounts) {
    const tests::OwnServer server({q("-extension"), q("X-Resource")});
    X11Connection connection(server.display());
    const xcb_window_t window = xcb_generate_id(connection.xcb());
    xcb_create_window(connection.xcb(), XCB_COPY_FROM_PARENT, window, connection.root(), 0, 0, 1, 1,
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    const QByteArray host = QSysInfo::machineHostName().toLocal8Bit();
    xcb_change_property(connection.xcb(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLIENT_MACHINE,
                        XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(host.size()),
                        host.constData());
    const auto name = connection.reply<xcb_intern_atom_reply>(
        xcb_intern_atom(connection.xcb(), 0, 11, "_NET_WM_PID"));
    const std::uint32_t told = 4711;
    xcb_change_property(connection.xcb(), XCB_PROP_MODE_REPLACE, window, name->atom,
                        XCB_ATOM_CARDINAL, 32, 1, &told);
    const auto hints = X11WindowReader(connection).read(window);
    ASSERT_TRUE(hints);
    EXPECT_EQ(hints->processId, 4711);
}

TEST_F(X11FrontmostAppTest, ProcessOfAnotherMachineIsNotTrusted) {
    const xcb_window_t window = makeWindow("Alpha");
    setText(window, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, "elsewhere.example.org");
    set(window, atom("_NET_WM_PID"), XCB_ATOM_CARDINAL,
        static_cast<std::uint32_t>(QCoreApplication::applicationPid()));
    callActive(window);
    EXPECT_EQ(frontmostId(), q("alpha"));
    ASSERT_FALSE(m_resolved.empty());
    EXPECT_EQ(m_resolved.back().processId, std::nullopt);
}

TEST_F(X11FrontmostAppTest, DialogBelongsToTheWindowThatItStandsOver) {
    const xcb_window_t parent = makeWindow("Alpha");
    const xcb_window_t dialog = makeWindow("Helper");
    const xcb_window_t upper = makeWindow("Helper");
    set(dialog, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, parent);
    set(upper, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, dialog);
    callActive(upper);
    EXPECT_EQ(frontmostId(), q("alpha"));
}

TEST_F(X11FrontmostAppTest, DialogsThatStandOverEachOtherOrTheRootEndTheSearch) {
    const xcb_window_t one = makeWindow("Alpha");
    const xcb_window_t other = makeWindow("Alpha");
    set(one, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, other);
    set(other, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, one);
    callActive(one);
    EXPECT_EQ(frontmostId(), q("alpha"));
    const xcb_window_t ofGroup = makeWindow("Beta");
    set(ofGroup, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, m_client.root());
    callActive(ofGroup);
    EXPECT_EQ(frontmostId(), q("org.example.Beta"));
}

TEST_F(X11FrontmostAppTest, DocksDesktopsAndUnmanagedWindowsAreNoApplications) {
    const xcb_window_t application = makeWindow("Alpha");
    const xcb_window_t dock = makeWindow("Beta");
    const xcb_window_t desktop = makeWindow("Beta");
    const xcb_window_t unmanaged = makeWindow("Beta");
    set(dock, atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, atom("_NET_WM_WINDOW_TYPE_DOCK"));
    set(desktop, atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, atom("_NET_WM_WINDOW_TYPE_DESKTOP"));
    const std::uint32_t yes = 1;
    xcb_change_window_attributes(m_client.xcb(), unmanaged, XCB_CW_OVERRIDE_REDIRECT, &yes);
    for (const xcb_window_t window : {dock, desktop, unmanaged}) {
        callActive(application);
        ASSERT_EQ(frontmostId(), q("alpha"));
        callActive(window);
        EXPECT_EQ(frontmostId(), q("none"));
        EXPECT_EQ(m_told.back(), std::nullopt);
    }
}

TEST_F(X11FrontmostAppTest, WindowThatIsGoneWhenItIsReadIsNoApplication) {
    const xcb_window_t application = makeWindow("Alpha");
    callActive(application);
    ASSERT_EQ(frontmostId(), q("alpha"));
    callActive(0x7ffffff);
    EXPECT_EQ(frontmostId(), q("none"));
    callActive(application);
    EXPECT_EQ(frontmostId(), q("alpha"));
}

TEST_F(X11FrontmostAppTest, WindowWithoutClassAndProcessHasNoIdentity) {
    callActive(makeWindow(""));
    EXPECT_EQ(m_frontmost.frontmost(), Application());
}

TEST_F(X11FrontmostAppTest, ApplicationIdOfTheWindowReachesTheResolver) {
    const xcb_window_t window = makeWindow("Alpha");
    setText(window, atom("_GTK_APPLICATION_ID"), atom("UTF8_STRING"), "org.example.Beta");
    callActive(window);
    EXPECT_EQ(frontmostId(), q("org.example.Beta"));
}

TEST_F(X11FrontmostAppTest, ServerWithoutAWindowManagerHasNothingInFront) {
    const tests::OwnServer server;
    X11Connection connection(server.display());
    X11FrontmostApp frontmost(connection, m_time, [](const auto&) { return Application(); });
    EXPECT_EQ(frontmost.frontmost(), std::nullopt);
    EXPECT_EQ(frontmost.coverage(), AppCoverage::None);
}

TEST_F(X11FrontmostAppTest, EveryApplicationIsToldOnceThereIsAWindowManager) {
    EXPECT_EQ(m_frontmost.coverage(), AppCoverage::All);
    const tests::OwnServer server;
    X11Connection connection(server.display());
    X11FrontmostApp frontmost(connection, m_time, [](const auto&) { return Application(); });
    int changes = 0;
    QObject::connect(&frontmost, &FrontmostApp::coverageChanged, &frontmost, [&] { ++changes; });
    QProcess manager;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(q("DISPLAY"), QString::fromLatin1(server.display()));
    manager.setProcessEnvironment(environment);
    manager.start(q("openbox"), {});
    EXPECT_TRUE(tests::await([&] { return frontmost.coverage() == AppCoverage::All; }));
    EXPECT_EQ(changes, 1);
    manager.kill();
    manager.waitForFinished();
}

TEST_F(X11FrontmostAppTest, NothingIsInFrontOnceTheServerIsGone) {
    auto server = std::make_unique<tests::OwnServer>();
    X11Connection connection(server->display());
    X11Connection other(server->display());
    const std::uint32_t root = other.root();
    const auto name = other.reply<xcb_intern_atom_reply>(
        xcb_intern_atom(other.xcb(), 0, 18, "_NET_ACTIVE_WINDOW"));
    xcb_change_property(other.xcb(), XCB_PROP_MODE_REPLACE, root, name->atom, XCB_ATOM_WINDOW, 32,
                        1, &root);
    (void)other.reply<xcb_get_input_focus_reply>(xcb_get_input_focus(other.xcb()));
    X11FrontmostApp frontmost(connection, m_time, [](const auto&) { return Application(); });
    ASSERT_TRUE(frontmost.frontmost());
    server.reset();
    EXPECT_TRUE(tests::await([&] { return !frontmost.frontmost(); }));
}

TEST_F(X11FrontmostAppTest, SwitchTakesLessThanTwoMilliseconds) {
    const xcb_window_t alpha = makeWindow("Alpha");
    const xcb_window_t beta = makeWindow("Beta");
    X11WindowReader reader(m_connection);
    callActive(alpha);
    std::vector<double> milliseconds;
    for (int i = 0; i < 101; ++i) {
        const xcb_window_t window = i % 2 == 0 ? alpha : beta;
        set(m_client.root(), reader.activeWindowAtom(), XCB_ATOM_WINDOW, window);
        (void)m_client.reply<xcb_get_input_focus_reply>(xcb_get_input_focus(m_client.xcb()));
        QElapsedTimer timer;
        timer.start();
        auto hints = reader.read(reader.activeWindow());
        ASSERT_TRUE(hints);
        hints->processId = QCoreApplication::applicationPid();
        (void)m_applications->identify(*hints);
        milliseconds.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    RecordProperty("median_us", static_cast<int>(milliseconds[50] * 1000));
    EXPECT_LT(milliseconds[50], 2.0);
}

} // namespace
} // namespace vantle
