#include "platform/x11/X11FrontmostApp.h"

#include "platform/desktop/DesktopApplications.h"
#include "support/Await.h"
#include "support/QtPrinters.h"
#include "x11/OwnServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace vantle {
namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

/// A terminal of the class.
class Terminal {
public:
    explicit Terminal(const QString& windowClass) {
        m_process.start(QStringLiteral("xterm"), {QStringLiteral("-class"), windowClass,
                                                  QStringLiteral("-e"), QStringLiteral("cat")});
        EXPECT_TRUE(tests::await([&] {
            m_window =
                tests::outputOf(
                    QStringLiteral("xdotool search --onlyvisible --class ^%1$").arg(windowClass))
                    .trimmed();
            return !m_window.isEmpty();
        }));
    }
    ~Terminal() { close(); }
    void activate() const {
        EXPECT_TRUE(tests::run(QStringLiteral("xdotool windowactivate --sync ") + m_window));
    }
    void close() {
        m_process.kill();
        m_process.waitForFinished();
    }
    [[nodiscard]] const QString& window() const { return m_window; }

private:
    QProcess m_process;
    QString m_window;
};

/// A desktop with two applications that have entries, and some windows.
class X11FrontmostAppTest : public testing::Test {
protected:
    X11FrontmostAppTest() {
        writeEntry("alpha", "Name=Alpha\nStartupWMClass=Alpha\n");
        writeEntry("org.example.Beta", "Name=Beta\n");
        m_applications =
            std::make_unique<DesktopApplications>(QStringList{m_entries.path()}, QStringList());
        QObject::connect(&m_frontmost, &FrontmostApp::activated, &m_frontmost,
                         [this](const auto& app) { m_told.push_back(app); });
    }

    void writeEntry(const char* id, const QByteArray& lines) {
        QFile file(m_entries.filePath(q(id) + QStringLiteral(".desktop")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[Desktop Entry]\nType=Application\n" + lines);
    }
    [[nodiscard]] QString frontmostId() {
        const auto app = m_frontmost.frontmost();
        return app ? app->bundleId : QStringLiteral("none");
    }
    [[nodiscard]] bool comesToFront(const char* id) {
        return tests::await([&] { return frontmostId() == q(id); });
    }

    /// A window of this test, shown as the window manager likes it.
    xcb_window_t makeWindow(const char* windowClass) {
        auto* const xcb = m_client.xcb();
        const xcb_window_t window = xcb_generate_id(xcb);
        xcb_create_window(xcb, XCB_COPY_FROM_PARENT, window, m_client.root(), 0, 0, 100, 100, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        if (*windowClass != '\0') {
            const QByteArray both = QByteArray("instance\0", 9) + windowClass + '\0';
            xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS,
                                XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(both.size()),
                                both.constData());
        }
        return window;
    }
    xcb_atom_t atom(const char* name) {
        const auto answer = m_client.reply<xcb_intern_atom_reply>(
            xcb_intern_atom(m_client.xcb(), 0, static_cast<std::uint16_t>(qstrlen(name)), name));
        return answer->atom;
    }
    void set(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, std::uint32_t value) {
        xcb_change_property(m_client.xcb(), XCB_PROP_MODE_REPLACE, window, name, type, 32, 1,
                            &value);
    }
    void setText(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, const QByteArray& text) {
        xcb_change_property(m_client.xcb(), XCB_PROP_MODE_REPLACE, window, name, type, 8,
                            static_cast<std::uint32_t>(text.size()), text.constData());
    }
    /// Calls the window active, as a window manager does.
    void callActive(xcb_window_t window) {
        set(m_client.root(), atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, window);
        (void)m_client.reply<xcb_get_input_focus_reply>(xcb_get_input_focus(m_client.xcb()));
        tests::catchUp(m_connection);
    }

    QTemporaryDir m_entries;
    std::unique_ptr<DesktopApplications> m_applications;
    X11Connection m_connection;
    X11Connection m_client; ///< of the windows that the test makes itself
    std::vector<WindowHints> m_resolved;
    X11FrontmostApp m_frontmost{m_connection, [this](const WindowHints& hints) {
                                    m_resolved.push_back(hints);
                                    return m_applications ? m_applications->identify(hints)
                                                          : Application();
                                }};
    std::vector<std::optional<Application>> m_told;
};

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

TEST_F(X11FrontmostAppTest, ApplicationStaysInFrontWhenItsLastWindowCloses) {
    Terminal alpha(q("Alpha"));
    alpha.activate();
    ASSERT_TRUE(comesToFront("alpha"));
    m_told.clear();
    alpha.close();
    tests::runFor(200);
    EXPECT_EQ(frontmostId(), q("alpha"));
    EXPECT_EQ(m_told.size(), 0U);
}

TEST_F(X11FrontmostAppTest, ApplicationInFrontAtTheStartIsKnown) {
    const Terminal alpha(q("Alpha"));
    alpha.activate();
    X11Connection connection;
    X11FrontmostApp late(connection, [&](const auto& h) { return m_applications->identify(h); });
    EXPECT_EQ(late.frontmost(), (Application{q("alpha"), q("Alpha")}));
}

TEST_F(X11FrontmostAppTest, OwnWindowsAreThisProgramWhateverTheirClass) {
    const xcb_window_t window = makeWindow("Alpha");
    setText(window, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING,
            QSysInfo::machineHostName().toLocal8Bit());
    set(window, atom("_NET_WM_PID"), XCB_ATOM_CARDINAL,
        static_cast<std::uint32_t>(QCoreApplication::applicationPid()));
    callActive(window);
    EXPECT_EQ(m_frontmost.frontmost(), (Application{q("local.vantle.Vantle"), q("Vantle")}));
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
    X11FrontmostApp frontmost(connection, [](const auto&) { return Application(); });
    EXPECT_EQ(frontmost.frontmost(), std::nullopt);
    EXPECT_EQ(frontmost.coverage(), AppCoverage::None);
}

TEST_F(X11FrontmostAppTest, EveryApplicationIsToldOnceThereIsAWindowManager) {
    EXPECT_EQ(m_frontmost.coverage(), AppCoverage::All);
    const tests::OwnServer server;
    X11Connection connection(server.display());
    X11FrontmostApp frontmost(connection, [](const auto&) { return Application(); });
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
    X11FrontmostApp frontmost(connection, [](const auto&) { return Application(); });
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
