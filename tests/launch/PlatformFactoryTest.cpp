// What the platform makes of the session that it finds: the X server tells, not the environment.
#include "launch/PlatformFactory.h"

#include "base/Scheduler.h"
#include "platform/gnome/FakeCustomKeys.h"
#include "platform/gnome/FakeShell.h"
#include "platform/kde/FakeKGlobalAccel.h"
#include "platform/kde/FakeKWin.h"
#include "platform/session/FakeShortcutPortal.h"
#include "support/Await.h"
#include "support/EnvironmentVariable.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <list>
#include <optional>

namespace vantle::tests {
namespace {

/// A Wayland session in a window of the test's X server.
class WaylandSession {
public:
    WaylandSession() {
        m_process.start(QStringLiteral(VANTLE_TEST_DATA "/../support/with-sway"),
                        {QStringLiteral("bash"), QStringLiteral("-c"),
                         QStringLiteral("echo $DISPLAY $WAYLAND_DISPLAY; exec cat")});
        EXPECT_TRUE(await([this] { return m_process.canReadLine(); }, 30000));
        const QList<QByteArray> words = m_process.readLine().trimmed().split(' ');
        m_display = words.value(0);
        m_socket = words.value(1);
    }
    ~WaylandSession() {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }
    WaylandSession(const WaylandSession&) = delete;
    WaylandSession& operator=(const WaylandSession&) = delete;

    [[nodiscard]] const QByteArray& display() const { return m_display; } ///< of Xwayland
    [[nodiscard]] const QByteArray& socket() const { return m_socket; }

private:
    QProcess m_process;
    QByteArray m_display;
    QByteArray m_socket;
};

class PlatformFactoryTest : public testing::Test {
protected:
    [[nodiscard]] const Platform& platform() {
        if (!m_owner)
            m_owner.emplace(platformfactory::makePlatform(m_scheduler, {}, QProcessEnvironment()));
        if (!m_platform) m_platform.emplace(m_owner->ports());
        return *m_platform;
    }
    void expectWaylandSession() {
        EXPECT_FALSE(platform().panelHost.tellsPointer());
        EXPECT_TRUE(platform().panelHost.isComposited());
    }
    void expectX11Session() {
        EXPECT_TRUE(platform().idleSource.canTell());
        EXPECT_TRUE(platform().idleSource.secondsSinceLastInput());
        EXPECT_NE(platform().frontmostApp.coverage(), AppCoverage::None);
        EXPECT_TRUE(platform().panelHost.tellsPointer());
        EXPECT_TRUE(platform().panelHost.hasInputRegions());
        EXPECT_TRUE(platform().overlayStage.isAvailable());
        EXPECT_FALSE(platform().panelHost.isComposited());
    }

    /// The program ends.
    void forget() {
        m_platform.reset();
        m_owner.reset();
    }

    QtScheduler m_scheduler;
    /// For the rest of the test; what the program finds of its session.
    void set(const char* name, const QByteArray& value) { m_variables.emplace_back(name, value); }

private:
    std::list<EnvironmentVariable> m_variables;
    std::optional<PlatformOwner> m_owner;
    std::optional<Platform> m_platform;
};

TEST_F(PlatformFactoryTest, AnX11SessionTellsAll) { expectX11Session(); }

TEST_F(PlatformFactoryTest, FilesLieWhereTheSessionPutsThem) {
    const QTemporaryDir folder;
    const QString config = folder.filePath(QStringLiteral("settings"));
    set("XDG_CONFIG_HOME", QFile::encodeName(config));
    set("XDG_DATA_HOME", "relative/paths/count/for/nothing");
    EXPECT_EQ(platform().folders.config, config);
    EXPECT_EQ(platform().folders.data, QDir::homePath() + QStringLiteral("/.local/share"));

    platform().preferences.setBoolean(QLatin1String("a.flag"), true);
    EXPECT_TRUE(QFile::exists(config + QStringLiteral("/Vantle/preferences.ini")));
    EXPECT_TRUE(platform().autostart.registerItem());
    EXPECT_TRUE(QFile::exists(config + QStringLiteral("/autostart/local.vantle.Vantle.desktop")));
}

TEST_F(PlatformFactoryTest, VariablesOfAWaylandSessionMakeNoneOfAnX11Server) {
    set("WAYLAND_DISPLAY", "wayland-0");
    set("XDG_SESSION_TYPE", "wayland");
    expectX11Session();
}

TEST_F(PlatformFactoryTest, BesideXwaylandTheCompositorTells) {
    const WaylandSession session;
    set("DISPLAY", session.display());
    set("WAYLAND_DISPLAY", session.socket());
    set("XDG_SESSION_TYPE", "wayland");
    expectWaylandSession();
    EXPECT_TRUE(await([this] { return platform().idleSource.canTell(); }));
    EXPECT_TRUE(platform().idleSource.secondsSinceLastInput());
    EXPECT_TRUE(await([this] { return platform().frontmostApp.coverage() == AppCoverage::All; }));
    EXPECT_TRUE(await([this] { return platform().overlayStage.isAvailable(); }));
    EXPECT_TRUE(await([this] {
        return platform().overlayStage.frames() == std::vector{QRect(0, 0, 1280, 800)};
    }));
}

TEST_F(PlatformFactoryTest, XwaylandIsKnownWithoutAnyVariableOfTheSession) {
    const WaylandSession session;
    set("DISPLAY", session.display());
    set("WAYLAND_DISPLAY", {});
    set("XDG_SESSION_TYPE", {});
    expectWaylandSession();
    runFor(200);
    EXPECT_FALSE(platform().idleSource.canTell()) << "Xwayland is asked for nothing it can't tell";
    EXPECT_FALSE(platform().idleSource.secondsSinceLastInput());
    EXPECT_EQ(platform().frontmostApp.coverage(), AppCoverage::Some) << "X11 windows alone";
    EXPECT_FALSE(platform().frontmostApp.frontmost());
    EXPECT_EQ(platform().overlayStage.isAvailable(), platform().panelHost.hasInputRegions());
}

TEST_F(PlatformFactoryTest, BesideXwaylandTheFirstServiceOfTheSessionGivesTheShortcut) {
    const WaylandSession session;
    set("DISPLAY", session.display());
    set("WAYLAND_DISPLAY", session.socket());
    for (int services = 0; services < 8; ++services) {
        FakeKGlobalAccel kde;
        FakeShortcutPortal portal;
        FakeCustomKeys gnome;
        const bool hasKde = (services & 1) != 0, hasPortal = (services & 2) != 0,
                   hasGnome = (services & 4) != 0;
        if (hasKde) kde.appear();
        if (hasPortal) portal.appear();
        if (hasGnome) gnome.appear();
        HotKeyPort& key = platform().hotKeyPort;
        auto outcome = key.registerKey();
        key.onOutcomeChanged = [&](const auto& later) { outcome = later; };
        using enum HotKeyPort::Registration;
        EXPECT_TRUE(await([&] { return outcome.registration != Waiting; }));
        const bool onWord = !hasKde && (hasPortal || hasGnome);
        EXPECT_EQ(outcome.registration, hasKde   ? Registered
                                        : onWord ? NotAllowed
                                                 : NotOffered)
            << services;
        EXPECT_EQ(key.wayToAllow(), QString::fromLatin1(!onWord     ? ""
                                                        : hasPortal ? "portal"
                                                                    : "gnome"))
            << services;
        EXPECT_EQ(kde.isHeld(), hasKde);
        EXPECT_FALSE(portal.isAsking());
        forget();
    }
}

TEST_F(PlatformFactoryTest, XwaylandAloneTellsOfItsOwnWindowsAndOfNoOther) {
    const WaylandSession session;
    set("DISPLAY", session.display());
    set("WAYLAND_DISPLAY", {});
    EXPECT_EQ(platform().frontmostApp.coverage(), AppCoverage::Some);
    QProcess own;
    own.start(QStringLiteral("xterm"), {QStringLiteral("-e"), QStringLiteral("cat")});
    EXPECT_TRUE(await([this] { return platform().frontmostApp.frontmost().has_value(); }));
    QProcess other;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("WAYLAND_DISPLAY"), QString::fromUtf8(session.socket()));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8")); // it ends without one
    other.setProcessEnvironment(environment);
    other.start(QStringLiteral("foot"), {QStringLiteral("cat")});
    EXPECT_TRUE(await([this] { return !platform().frontmostApp.frontmost(); }));
    for (QProcess* const process : {&own, &other}) {
        process->kill();
        process->waitForFinished();
    }
}

TEST_F(PlatformFactoryTest, OfEachCombinationOfServicesTheFirstTellsTheApplicationInFront) {
    const WaylandSession session;
    set("DISPLAY", session.display());
    for (const bool hasToplevels : {false, true}) {
        set("WAYLAND_DISPLAY", hasToplevels ? session.socket() : QByteArray());
        const PlatformOwner owner =
            platformfactory::makePlatform(m_scheduler, {}, QProcessEnvironment());
        FrontmostApp& front = owner.ports().frontmostApp;
        for (unsigned services = 0; services < 4; ++services) {
            SCOPED_TRACE(testing::Message() << hasToplevels << ' ' << services);
            std::optional<FakeKWin> kwin;
            std::optional<FakeShell> shell;
            if ((services & 1U) != 0) {
                kwin.emplace(KWinVersion::Six).appear();
                ASSERT_TRUE(await([&] { return kwin->isScriptRunning(); }));
                kwin->script()->activate(QStringLiteral("of-kwin"));
            }
            if ((services & 2U) != 0) {
                shell.emplace().appear();
                shell->report(QDBusConnection::sessionBus().baseService(),
                              QStringLiteral("of-shell"));
            }
            const QString expected = hasToplevels ? QString()
                                     : kwin       ? QStringLiteral("of-kwin")
                                     : shell      ? QStringLiteral("of-shell")
                                                  : QString();
            EXPECT_TRUE(await([&] {
                const auto app = front.frontmost();
                return (app ? app->name : QString()) == expected &&
                       front.coverage() ==
                           (hasToplevels || services != 0 ? AppCoverage::All : AppCoverage::Some);
            }));
        }
    }
}

} // namespace
} // namespace vantle::tests
