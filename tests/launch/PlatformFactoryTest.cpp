// What the platform makes of the session that it finds: the X server tells, not the environment.
#include "launch/PlatformFactory.h"

#include "base/Scheduler.h"
#include "support/Await.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <optional>

namespace vantle::tests {
namespace {

/// Variables of the session as the program finds them, until the end of the test.
class SessionVariables {
public:
    ~SessionVariables() {
        for (const auto& [name, value] : m_before)
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }
    SessionVariables() = default;
    SessionVariables(const SessionVariables&) = delete;
    SessionVariables& operator=(const SessionVariables&) = delete;

    void set(const char* name, const QByteArray& value) {
        m_before.try_emplace(name, qgetenv(name));
        value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }

private:
    std::map<const char*, QByteArray> m_before;
};

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
        EXPECT_FALSE(platform().hotKeyPort.hearsEveryApp());
        EXPECT_FALSE(platform().panelHost.tellsPointer());
        EXPECT_TRUE(platform().panelHost.isComposited());
    }
    void expectX11Session() {
        EXPECT_TRUE(platform().idleSource.canTell());
        EXPECT_TRUE(platform().idleSource.secondsSinceLastInput());
        EXPECT_NE(platform().frontmostApp.coverage(), AppCoverage::None);
        EXPECT_TRUE(platform().hotKeyPort.hearsEveryApp());
        EXPECT_TRUE(platform().panelHost.tellsPointer());
        EXPECT_TRUE(platform().panelHost.hasInputRegions());
        EXPECT_FALSE(platform().panelHost.isComposited());
    }

    QtScheduler m_scheduler;
    SessionVariables variables;

private:
    std::optional<PlatformOwner> m_owner;
    std::optional<Platform> m_platform;
};

TEST_F(PlatformFactoryTest, AnX11SessionTellsAll) { expectX11Session(); }

TEST_F(PlatformFactoryTest, FilesLieWhereTheSessionPutsThem) {
    const QTemporaryDir folder;
    const QString config = folder.filePath(QStringLiteral("settings"));
    variables.set("XDG_CONFIG_HOME", QFile::encodeName(config));
    variables.set("XDG_DATA_HOME", "relative/paths/count/for/nothing");
    EXPECT_EQ(platform().folders.config, config);
    EXPECT_EQ(platform().folders.data, QDir::homePath() + QStringLiteral("/.local/share"));

    platform().preferences.setBoolean(QLatin1String("a.flag"), true);
    EXPECT_TRUE(QFile::exists(config + QStringLiteral("/Vantle/preferences.ini")));
    EXPECT_TRUE(platform().autostart.registerItem());
    EXPECT_TRUE(QFile::exists(config + QStringLiteral("/autostart/local.vantle.Vantle.desktop")));
}

TEST_F(PlatformFactoryTest, VariablesOfAWaylandSessionMakeNoneOfAnX11Server) {
    variables.set("WAYLAND_DISPLAY", "wayland-0");
    variables.set("XDG_SESSION_TYPE", "wayland");
    expectX11Session();
}

TEST_F(PlatformFactoryTest, BesideXwaylandTheCompositorTells) {
    const WaylandSession session;
    variables.set("DISPLAY", session.display());
    variables.set("WAYLAND_DISPLAY", session.socket());
    variables.set("XDG_SESSION_TYPE", "wayland");
    expectWaylandSession();
    EXPECT_TRUE(await([this] { return platform().idleSource.canTell(); }));
    EXPECT_TRUE(platform().idleSource.secondsSinceLastInput());
    EXPECT_TRUE(await([this] { return platform().frontmostApp.coverage() == AppCoverage::All; }));
}

TEST_F(PlatformFactoryTest, XwaylandIsKnownWithoutAnyVariableOfTheSession) {
    const WaylandSession session;
    variables.set("DISPLAY", session.display());
    variables.set("WAYLAND_DISPLAY", {});
    variables.set("XDG_SESSION_TYPE", {});
    expectWaylandSession();
    runFor(200);
    EXPECT_FALSE(platform().idleSource.canTell()) << "Xwayland is asked for nothing it can't tell";
    EXPECT_FALSE(platform().idleSource.secondsSinceLastInput());
    EXPECT_EQ(platform().frontmostApp.coverage(), AppCoverage::None);
    EXPECT_FALSE(platform().frontmostApp.frontmost());
}

} // namespace
} // namespace vantle::tests
