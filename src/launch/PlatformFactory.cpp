#include "launch/PlatformFactory.h"

#include "base/Clock.h"
#include "platform/CannotTell.h"
#include "platform/applications/DesktopApplications.h"
#include "platform/applications/DesktopAutostart.h"
#include "platform/localmodel/SocketLanguageModel.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixProcessRunner.h"
#include "platform/posix/SettingsPreferences.h"
#include "platform/posix/TerminationSignals.h"
#include "platform/session/ApplicationService.h"
#include "platform/session/BusGreeting.h"
#include "platform/session/DesktopReducedMotion.h"
#include "platform/session/DesktopFileManager.h"
#include "platform/session/LoginScreenPower.h"
#include "platform/session/PortalSaveDialog.h"
#include "platform/session/QtImageClipboard.h"
#include "platform/session/QtSaveDialog.h"
#include "platform/session/QtScreens.h"
#include "platform/session/SessionScreenPower.h"
#include "platform/tray/DesktopTrayItem.h"
#include "platform/x11/LostServer.h"
#include "platform/x11/ScaleFactor.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11FrontmostApp.h"
#include "platform/x11/X11HotKey.h"
#include "platform/x11/X11IdleSource.h"
#include "platform/x11/X11PanelHost.h"
#include "platform/x11/X11PointerPresses.h"
#include "platform/x11/X11RawPresses.h"
#include "platform/x11/X11ScreenPower.h"
#include "platform/x11/X11Struts.h"
#include "platform/x11/X11WindowManager.h"
#include "platform/x11/XwaylandTraits.h"
#include "sensing/ScreenPowerUnion.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDir>

namespace vantle {

namespace {

/// A directory of the XDG kind: the variable if it holds an absolute path, else the one under home.
QString xdgDirectory(const char* variable, const QString& underHome) {
    const QString path = qEnvironmentVariable(variable);
    return path.startsWith(QLatin1Char('/')) ? path : QDir::homePath() + underHome;
}

QString configHome() { return xdgDirectory("XDG_CONFIG_HOME", QStringLiteral("/.config")); }

/// Xwayland sees only the input that goes to X11 windows, and calls the last X11 window active
/// while the user works in another one. What it says of either is worse than nothing.
std::unique_ptr<IdleSource> makeIdleSource(X11Connection& x11, const Clock& clock,
                                           const XwaylandTraits& xwayland) {
    if (xwayland.isXwayland) return std::make_unique<NoIdleSource>();
    return std::make_unique<X11IdleSource>(x11, clock);
}

std::unique_ptr<FrontmostApp> makeFrontmostApp(X11Connection& x11, Scheduler& scheduler,
                                               const XwaylandTraits& xwayland,
                                               DesktopApplications& applications) {
    if (xwayland.isXwayland) return std::make_unique<NoFrontmostApp>();
    return std::make_unique<X11FrontmostApp>(
        x11, scheduler,
        [&applications](const WindowHints& hints) { return applications.identify(hints); });
}

std::unique_ptr<ScreenPower> makeScreenPower(X11Connection& x11, Scheduler& scheduler,
                                             const QDBusConnection& session) {
    std::vector<std::unique_ptr<ScreenPower>> sources;
    sources.push_back(
        std::make_unique<X11ScreenPower>(x11, scheduler, X11ScreenPower::powerManagement(x11)));
    sources.push_back(std::make_unique<SessionScreenPower>(session));
    sources.push_back(std::make_unique<LoginScreenPower>(LateBus::systemAddress(),
                                                         qEnvironmentVariable("XDG_SESSION_ID")));
    return std::make_unique<ScreenPowerUnion>(std::move(sources));
}

/// A desktop of the X11 and freedesktop.org kind.
class X11Platform final : public Platform {
public:
    X11Platform(Scheduler& scheduler, PlatformEvents events, const QProcessEnvironment& environment)
        : m_scheduler(scheduler)
        , m_events(std::move(events))
        , m_session(QDBusConnection::sessionBus())
        , m_preferences(m_files, configHome() + QStringLiteral("/Vantle/preferences.ini"))
        , m_xwayland(xwaylandTraits(m_x11))
        , m_idleSource(makeIdleSource(m_x11, m_clock, m_xwayland))
        , m_screenPower(makeScreenPower(m_x11, scheduler, m_session))
        , m_hotKey(m_x11, scheduler, m_xwayland.isXwayland)
        , m_applications(DesktopApplications::standardFolders())
        , m_frontmostApp(makeFrontmostApp(m_x11, scheduler, m_xwayland, m_applications))
        , m_processRunner(environment)
        , m_fileManager(m_session, m_processRunner)
        , m_reducedMotion(m_session, configHome())
        , m_autostart(m_files,
                      configHome() + QStringLiteral("/autostart/local.vantle.Vantle.desktop"),
                      QCoreApplication::applicationFilePath())
        , m_trayItem(m_session, !m_xwayland.isXwayland)
        , m_struts(m_x11)
        , m_screens(m_struts, !m_xwayland.isXwayland)
        , m_rawPresses(m_x11)
        , m_panelHost(m_x11, scheduler, m_rawPresses, m_xwayland)
        , m_windowManager(m_x11)
        , m_pointerPresses(m_rawPresses)
        , m_languageModel(m_files, configHome() + QStringLiteral("/Vantle/language-model.conf"),
                          scheduler)
        , m_saveDialog(m_session, m_qtSaveDialog)
        , m_service(m_session)
        , m_signals([this](int) { m_events.endRequested(); }) {
        endSilentlyWithServer();
        QObject::connect(&m_x11, &X11Connection::broken, &m_x11,
                         [this] { m_events.displayLost(); });
        QObject::connect(&m_service, &ApplicationService::activated, &m_service,
                         [this] { m_events.activated(); });
        QObject::connect(&m_service, &ApplicationService::actionActivated, &m_service,
                         [this](const QString& name) { m_events.actionActivated(name); });
    }

    [[nodiscard]] FileSystem& fileSystem() override { return m_files; }
    [[nodiscard]] Preferences& preferences() override { return m_preferences; }
    [[nodiscard]] IdleSource& idleSource() override { return *m_idleSource; }
    [[nodiscard]] ScreenPower& screenPower() override { return *m_screenPower; }
    [[nodiscard]] HotKeyPort& hotKeyPort() override { return m_hotKey; }
    [[nodiscard]] FrontmostApp& frontmostApp() override { return *m_frontmostApp; }
    [[nodiscard]] ProcessRunner& processRunner() override { return m_processRunner; }
    [[nodiscard]] ReducedMotion& reducedMotion() override { return m_reducedMotion; }
    [[nodiscard]] Autostart& autostart() override { return m_autostart; }
    [[nodiscard]] TrayItem& trayItem() override { return m_trayItem; }
    [[nodiscard]] LanguageModel& languageModel() override { return m_languageModel; }
    [[nodiscard]] Screens& screens() override { return m_screens; }
    [[nodiscard]] PanelHost& panelHost() override { return m_panelHost; }
    [[nodiscard]] WindowManager& windowManager() override { return m_windowManager; }
    [[nodiscard]] PointerPresses& pointerPresses() override { return m_pointerPresses; }
    [[nodiscard]] ImageClipboard& imageClipboard() override { return m_imageClipboard; }
    [[nodiscard]] SaveDialog& saveDialog() override { return m_saveDialog; }
    [[nodiscard]] QString dataHome() const override {
        return xdgDirectory("XDG_DATA_HOME", QStringLiteral("/.local/share"));
    }
    [[nodiscard]] Result<> moveToTrash(const QString& path) override {
        return DesktopFileManager::moveToTrash(path);
    }
    void reveal(const QString& path) override { m_fileManager.reveal(path); }
    [[nodiscard]] Result<> openShortcuts() override {
        constexpr int kPrivateDirectory = 0700;
        const QString folder = configHome() + QStringLiteral("/Vantle/shortcuts");
        if (auto made = m_files.makeDirectories(folder, kPrivateDirectory); !made) return made;
        m_fileManager.openFolder(folder);
        return {};
    }
    void listen() override {
        // Without the name nobody can reach this copy over the bus; all else works.
        m_service.start();
    }
    [[nodiscard]] bool showRunningCopy() override {
        return ApplicationService::showRunningCopy(m_session, m_scheduler);
    }

private:
    Scheduler& m_scheduler;
    const PlatformEvents m_events;
    QDBusConnection m_session;
    PosixFileSystem m_files;
    X11Connection m_x11;
    SystemClock m_clock;
    SettingsPreferences m_preferences;
    const XwaylandTraits m_xwayland;
    std::unique_ptr<IdleSource> m_idleSource;
    std::unique_ptr<ScreenPower> m_screenPower;
    X11HotKey m_hotKey;
    DesktopApplications m_applications;
    std::unique_ptr<FrontmostApp> m_frontmostApp;
    PosixProcessRunner m_processRunner;
    DesktopFileManager m_fileManager;
    DesktopReducedMotion m_reducedMotion;
    DesktopAutostart m_autostart;
    DesktopTrayItem m_trayItem;
    X11Struts m_struts;
    QtScreens m_screens;
    X11RawPresses m_rawPresses;
    X11PanelHost m_panelHost;
    X11WindowManager m_windowManager;
    X11PointerPresses m_pointerPresses;
    SocketLanguageModel m_languageModel;
    QtImageClipboard m_imageClipboard;
    QtSaveDialog m_qtSaveDialog;
    PortalSaveDialog m_saveDialog;
    ApplicationService m_service;
    TerminationSignals m_signals;
};

} // namespace

namespace platformfactory {

bool desktopIsReachable() {
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    const bool reachable = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return reachable;
}

void leaveMuteSessionBus() {
    constexpr int kLimitMs = 1000;
    constexpr const char* kVariable = "DBUS_SESSION_BUS_ADDRESS";
    QByteArray address = qgetenv(kVariable);
    if (address.isEmpty()) address = "unix:path=" + qgetenv("XDG_RUNTIME_DIR") + "/bus";
    if (BusGreeting(address).waitForAnswer(kLimitMs) == BusGreeting::Answer::Waiting)
        qputenv(kVariable, "disabled:");
}

void settleScaleFactor() {
    constexpr const char* kDpi = "QT_FONT_DPI";
    for (const char* told : {kDpi, "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS",
                             "QT_SCALE_FACTOR_ROUNDING_POLICY", "QT_USE_PHYSICAL_DPI"})
        if (qEnvironmentVariableIsSet(told)) return;
    // No rounding policy of Qt's leaves 1.25 and 1.5 as they are.
    if (const auto dpi = scalefactor::settledDpi(scalefactor::desktopDpi()))
        qputenv(kDpi, QByteArray::number(*dpi));
}

std::unique_ptr<Platform> makePlatform(Scheduler& scheduler, PlatformEvents events,
                                       const QProcessEnvironment& environment) {
    return std::make_unique<X11Platform>(scheduler, std::move(events), environment);
}

} // namespace platformfactory
} // namespace vantle
