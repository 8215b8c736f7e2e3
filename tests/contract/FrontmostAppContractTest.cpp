// What everything that tells the application in front promises.
#include "contract/Contract.h"
#include "fakes/FakeFrontmostApp.h"
#include "fakes/VirtualTime.h"
#include "platform/gnome/FakeShell.h"
#include "platform/gnome/ShellFrontmostApp.h"
#include "platform/kde/FakeKWin.h"
#include "platform/kde/KWinFrontmostApp.h"
#include "platform/wayland/FakeCompositor.h"
#include "platform/wayland/WaylandToplevels.h"
#include "platform/x11/OwnServer.h"
#include "platform/x11/X11FrontmostApp.h"
#include "support/Await.h"
#include "support/QtPrinters.h"

#include <utility>
#include <vector>

namespace vantle {
namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

ReportedFrontmostApp::Reading readingOf(Scheduler& scheduler) {
    return {.scheduler = scheduler,
            .resolve =
                [](const WindowHints& hints) {
                    return Application{hints.applicationId, hints.windowClass};
                },
            .oursHasTheKeyboard = [] { return false; }};
}

/// A desktop with windows, and what tells which of their applications is in front.
class FrontmostWorld {
public:
    virtual ~FrontmostWorld() = default;
    [[nodiscard]] virtual FrontmostApp& app() = 0;
    /// A window of the application gets the keyboard.
    virtual void bring(const char* id) = 0;
    /// No application has the keyboard any more, and it stays so.
    virtual void leave() = 0;
    /// Takes away what tells the application.
    virtual void lose() = 0;
};

class FakeWorld final : public FrontmostWorld {
public:
    [[nodiscard]] FrontmostApp& app() override { return m_app; }
    void bring(const char* id) override { m_app.activate(Application{q(id), q(id)}); }
    void leave() override { m_app.activate(std::nullopt); }
    void lose() override { m_app.setCoverage(AppCoverage::None); }

private:
    fakes::FakeFrontmostApp m_app;
};

/// The test is the window manager of a server of its own.
class X11World final : public FrontmostWorld {
public:
    X11World() {
        set("_NET_SUPPORTED", XCB_ATOM_ATOM, atom("_NET_ACTIVE_WINDOW"));
        callActive(XCB_NONE);
    }
    [[nodiscard]] FrontmostApp& app() override { return m_app; }
    void bring(const char* id) override {
        auto* const xcb = m_client.xcb();
        const xcb_window_t window = xcb_generate_id(xcb);
        xcb_create_window(xcb, XCB_COPY_FROM_PARENT, window, m_client.root(), 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        const QByteArray both = QByteArray("instance\0", 9) + id + '\0';
        xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING,
                            8, static_cast<std::uint32_t>(both.size()), both.constData());
        callActive(window);
    }
    void leave() override {
        callActive(XCB_NONE);
        m_time.advance(X11FrontmostApp::noneIsBelievedAfter);
    }
    void lose() override {
        m_server.stop();
        EXPECT_TRUE(tests::await([this] { return !m_connection.isAlive(); }));
        tests::runFor(20);
    }

private:
    xcb_atom_t atom(const char* name) {
        return m_client
            .reply<xcb_intern_atom_reply>(
                xcb_intern_atom(m_client.xcb(), 0, static_cast<std::uint16_t>(qstrlen(name)), name))
            ->atom;
    }
    void set(const char* property, xcb_atom_t type, std::uint32_t value) {
        xcb_change_property(m_client.xcb(), XCB_PROP_MODE_REPLACE, m_client.root(), atom(property),
                            type, 32, 1, &value);
    }
    void callActive(xcb_window_t window) {
        set("_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW, window);
        tests::catchUp(m_client);
        tests::catchUp(m_connection);
    }

    tests::OwnServer m_server;
    X11Connection m_client{m_server.display()};
    X11Connection m_connection{m_server.display()};
    fakes::VirtualTime m_time;
    X11FrontmostApp m_app{m_connection, m_time, [](const WindowHints& hints) {
                              return Application{hints.windowClass, hints.windowClass};
                          }};
};

class WaylandWorld final : public FrontmostWorld {
public:
    WaylandWorld() {
        m_compositor.offerToplevels();
        m_compositor.settle();
    }
    [[nodiscard]] FrontmostApp& app() override { return m_app; }
    void bring(const char* id) override {
        const int before = std::exchange(m_window, m_compositor.open(id));
        tell(m_window, true);
        if (before >= 0) tell(before, false);
    }
    void leave() override {
        tell(std::exchange(m_window, -1), false);
        m_time.advance(WaylandToplevels::noneIsBelievedAfter);
    }
    void lose() override {
        m_compositor.vanish();
        m_compositor.settle();
    }

private:
    void tell(int window, bool isActivated) {
        m_compositor.activate(window, isActivated);
        m_compositor.done(window);
    }

    tests::FakeCompositor m_compositor;
    WaylandConnection m_connection{m_compositor.takeSocket()};
    fakes::VirtualTime m_time;
    WaylandToplevels m_app{m_connection, readingOf(m_time)};
    int m_window = -1;
};

/// `Version` of KDE's window manager.
template <tests::KWinVersion Version>
class KWinWorld final : public FrontmostWorld {
public:
    KWinWorld() {
        m_kwin.appear();
        EXPECT_TRUE(tests::await([this] { return m_app.coverage() == AppCoverage::All; }));
    }
    [[nodiscard]] FrontmostApp& app() override { return m_app; }
    void bring(const char* id) override {
        m_kwin.script()->activate(q(id));
        EXPECT_TRUE(tests::await([&] {
            const auto app = m_app.frontmost();
            return app && app->bundleId == q(id);
        }));
    }
    void leave() override {
        m_kwin.script()->activate({});
        EXPECT_TRUE(tests::await([this] { return m_time.timerCount() > 0; }));
        m_time.advance(KWinFrontmostApp::noneIsBelievedAfter);
    }
    void lose() override {
        m_kwin.disappear();
        EXPECT_TRUE(tests::await([this] { return m_app.coverage() == AppCoverage::None; }));
    }

private:
    tests::FakeKWin m_kwin{Version};
    tests::BusClient m_session;
    fakes::VirtualTime m_time;
    KWinFrontmostApp m_app{m_session.bus(), readingOf(m_time)};
};

/// GNOME's shell with the extension on.
class ShellWorld final : public FrontmostWorld {
public:
    ShellWorld() {
        m_shell.appear();
        report({});
        EXPECT_TRUE(tests::await([this] { return m_app.coverage() == AppCoverage::All; }));
    }
    [[nodiscard]] FrontmostApp& app() override { return m_app; }
    void bring(const char* id) override {
        report(q(id));
        EXPECT_TRUE(tests::await([&] {
            const auto app = m_app.frontmost();
            return app && app->bundleId == q(id);
        }));
    }
    void leave() override {
        report({});
        EXPECT_TRUE(tests::await([this] { return m_time.timerCount() > 0; }));
        m_time.advance(ShellFrontmostApp::noneIsBelievedAfter);
    }
    void lose() override {
        m_shell.disappear();
        EXPECT_TRUE(tests::await([this] { return m_app.coverage() == AppCoverage::None; }));
    }

private:
    void report(const QString& id) { m_shell.report(m_session.bus().baseService(), id); }

    tests::FakeShell m_shell;
    tests::BusClient m_session;
    fakes::VirtualTime m_time;
    ShellFrontmostApp m_app{m_session.bus(), {}, readingOf(m_time)};
};

using KWin5World = KWinWorld<tests::KWinVersion::Five>;
using KWin6World = KWinWorld<tests::KWinVersion::Six>;

class FrontmostAppContract : public contract::Contract<FrontmostWorld> {
protected:
    FrontmostAppContract() {
        QObject::connect(&world().app(), &FrontmostApp::activated, &world().app(),
                         [this](const auto& app) {
                             m_told.push_back(app);
                             EXPECT_EQ(world().app().frontmost(), app);
                         });
        QObject::connect(&world().app(), &FrontmostApp::coverageChanged, &world().app(),
                         [this] { ++m_coverageChanges; });
    }

    std::vector<std::optional<Application>> m_told;
    int m_coverageChanges = 0;
};

INSTANTIATE_TEST_SUITE_P(, FrontmostAppContract,
                         testing::Values(contract::maker<FrontmostWorld, FakeWorld>("Fake"),
                                         contract::maker<FrontmostWorld, X11World>("X11"),
                                         contract::maker<FrontmostWorld, WaylandWorld>("Wayland"),
                                         contract::maker<FrontmostWorld, ShellWorld>("Shell"),
                                         contract::maker<FrontmostWorld, KWin5World>("KWin5"),
                                         contract::maker<FrontmostWorld, KWin6World>("KWin6")),
                         contract::kByName);

TEST_P(FrontmostAppContract, NothingIsInFrontAtFirstThoughItCanTell) {
    EXPECT_EQ(world().app().frontmost(), std::nullopt);
    EXPECT_EQ(world().app().coverage(), AppCoverage::All);
}

TEST_P(FrontmostAppContract, EachSwitchIsToldWithWhatIsInFrontThen) {
    const Application alpha{q("alpha"), q("alpha")};
    const Application beta{q("beta"), q("beta")};
    for (int i = 0; i < 2; ++i) {
        world().bring("alpha");
        EXPECT_EQ(world().app().frontmost(), alpha);
        world().bring("beta");
        EXPECT_EQ(world().app().frontmost(), beta);
    }
    EXPECT_EQ(m_told, (std::vector<std::optional<Application>>{alpha, beta, alpha, beta}));
}

TEST_P(FrontmostAppContract, EmptyDesktopIsToldAndSoIsTheReturn) {
    world().bring("alpha");
    world().leave();
    EXPECT_EQ(world().app().frontmost(), std::nullopt);
    EXPECT_EQ(world().app().coverage(), AppCoverage::All);
    world().bring("alpha");
    ASSERT_EQ(m_told.size(), 3U);
    EXPECT_EQ(m_told[1], std::nullopt);
    EXPECT_EQ(m_told[2], (Application{q("alpha"), q("alpha")}));
}

TEST_P(FrontmostAppContract, NothingIsInFrontOnceItCantTellAtAll) {
    world().bring("alpha");
    m_told.clear();
    m_coverageChanges = 0;
    world().lose();
    EXPECT_EQ(world().app().frontmost(), std::nullopt);
    EXPECT_EQ(world().app().coverage(), AppCoverage::None);
    EXPECT_EQ(m_coverageChanges, 1);
    ASSERT_EQ(m_told.size(), 1U);
    EXPECT_EQ(m_told[0], std::nullopt);
}

} // namespace
} // namespace vantle
