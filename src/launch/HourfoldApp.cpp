#include "launch/HourfoldApp.h"

#include "base/Clock.h"
#include "base/SerialQueue.h"
#include "launch/AppDelegate.h"
#include "launch/AppInstaller.h"
#include "launch/Ceremony.h"
#include "launch/FloatingSurfaces.h"
#include "launch/InstallLocation.h"
#include "launch/PlatformFactory.h"
#include "launch/PosterSharing.h"
#include "launch/ResourceFolders.h"
#include "platform/ReducedMotion.h"
#include "review/drawing/PersonaArtwork.h"
#include "sensing/AutoRules.h"
#include "surfaces/alert/ModalPresenter.h"
#include "surfaces/kit/tokens/Motion.h"
#include "surfaces/window/SharedEngine.h"
#include "tracking/AppPaths.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcessEnvironment>
#include <QQuickWindow>
#include <QStorageInfo>

#include <cstdlib>
#include <optional>

namespace vantle {

namespace {

constexpr int kNoDesktop = 69; // EX_UNAVAILABLE

void alertAlreadyRunning(PanelHost& host) {
    (void)modalpresenter::runAlert(
        {QStringLiteral("Vantle is already running"),
         QStringLiteral("Another copy of Vantle is already using this Mac's data. This one will "
                        "close so your history stays safe."),
         {QStringLiteral("OK")}},
        host);
}

/// Whether the desktop started the program unasked: at login, or for a call over the bus. The mark
/// is taken away, so that no child process inherits it.
bool takeUnaskedMark() {
    const bool marked = qEnvironmentVariableIsSet("VANTLE_AUTOSTART");
    qunsetenv("VANTLE_AUTOSTART");
    return marked;
}

/// What programs that this one starts find: what the session gave it, before it sets anything for
/// itself. Without the two marks of its own start, which belong to its first window.
QProcessEnvironment userEnvironment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DESKTOP_STARTUP_ID"));
    environment.remove(QStringLiteral("XDG_ACTIVATION_TOKEN"));
    return environment;
}

/// The small program that runs the person's shortcuts lies beside this one.
QString shortcutsTool() {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/vantle-shortcuts");
}

/// Where this program lies, as the installer wants to know it. Where somebody put it on purpose
/// counts as its proper place.
AppInstaller::Place thisProgram(Platform& platform) {
    const QString folder = QCoreApplication::applicationDirPath();
    const bool isOnPurpose = installlocation::isOnPurpose(platform.fileSystem(), folder);
    const QString home = QFileInfo(QDir::homePath()).canonicalFilePath();
    AppInstaller::Place place;
    place.home = home;
    place.program = isOnPurpose
                        ? installlocation::target(home)
                        : QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath();
    place.companions = installlocation::companions(folder, home);
    place.isReadOnly = QStorageInfo(folder).isReadOnly();
    return place;
}

AppInstaller::Operations installOperations(Platform& platform) {
    return {.runAlert =
                [&platform](const Alert& alert) {
                    return modalpresenter::runAlert(alert, platform.panelHost());
                },
            .moveToTrash = [&platform](const QString& path) { return platform.moveToTrash(path); },
            .reveal = [&platform](const QString& path) { platform.reveal(path); },
            .start =
                [&platform](const QString& program) {
                    return platform.processRunner().startDetached({program, {}});
                },
            .terminate = [] { QCoreApplication::exit(); }};
}

void describeApplication() {
    // No display name besides: it would be appended to the title of every window.
    QApplication::setApplicationName(QStringLiteral("vantle"));
    QApplication::setDesktopFileName(QStringLiteral("local.vantle.Vantle"));
    QApplication::setQuitOnLastWindowClosed(false);
    QDir::setSearchPaths(personaartwork::searchPrefix(), resourcefolders::all());
}

/// Everything real that the program stands on, made in the order in which one needs the other.
struct Ground {
    Ground(PlatformEvents events, const QProcessEnvironment& environment)
        : platform(platformfactory::makePlatform(scheduler, std::move(events), environment)) {
        QObject::connect(&platform->reducedMotion(), &ReducedMotion::changed, &context,
                         [this] { viewEngine.refresh(); });
    }

    QtScheduler scheduler;
    const std::unique_ptr<Platform> platform;
    const SystemClock clock{};
    // Before the queues, which run what is left in them, on these paths, as they go.
    const AppPaths paths{platform->fileSystem(), platform->dataHome()};
    ThreadQueue ioQueue{QStringLiteral("local.vantle.tracker-io")};
    ThreadQueue autoSkillQueue{QLatin1String(AutoRules::ioQueueLabel)};
    ThreadQueue exportQueue{QStringLiteral("local.vantle.export-io")};
    PosterSharing posterSharing{{platform->imageClipboard(), platform->saveDialog(),
                                 platform->fileSystem(), scheduler, exportQueue}};
    AppInstaller installer{platform->preferences(), platform->fileSystem(), thisProgram(*platform),
                           installOperations(*platform)};
    Ceremony ceremony{{.clock = clock,
                       .scheduler = scheduler,
                       .preferences = platform->preferences(),
                       .reducedMotion = platform->reducedMotion(),
                       .screens = platform->screens(),
                       .panelHost = platform->panelHost()}};
    SharedEngine viewEngine{[&motion = platform->reducedMotion()](QQmlEngine& engine) {
        Motion::of(engine)->setReduced(motion.enabled());
    }};
    FloatingSurfaces surfaces{{.engine = viewEngine,
                               .scheduler = scheduler,
                               .preferences = platform->preferences(),
                               .reducedMotion = platform->reducedMotion(),
                               .screens = platform->screens(),
                               .panelHost = platform->panelHost()}};
    QObject context{}; ///< of connections; they end first

    /// Returns when nothing is under way that needs more than this.
    void settle() {
        ceremony.settle();
        exportQueue.drain();
    }
};

/// The running program, for the one exit that unwinds nothing: when the display server goes away,
/// the toolkit calls exit() from inside the event loop.
struct Running {
    AppDelegate& delegate;
    Ground& ground;
};
std::optional<Running> running;

/// Of the main thread. exit() destroys what belongs to its thread before it runs the handlers of
/// atexit() and destroys what is static, the toolkit's fonts included, which the ceremony's queue
/// may be using. So this is the one place where the queues can still come to their end.
struct StopAtExit {
    ~StopAtExit() {
        if (!running) return;
        running->delegate.applicationWillTerminateUnseen();
        running->ground.settle();
    }
};

/// `isEnding` becomes true when the program is told to end.
AppDelegate::Environment environmentOn(Ground& ground, bool startedUnasked, const bool& isEnding) {
    Platform& platform = *ground.platform;
    return {.clock = ground.clock,
            .scheduler = ground.scheduler,
            .ioQueue = ground.ioQueue,
            .autoSkillQueue = ground.autoSkillQueue,
            .paths = ground.paths,
            .preferences = platform.preferences(),
            .idleSource = platform.idleSource(),
            .screenPower = platform.screenPower(),
            .hotKeyPort = platform.hotKeyPort(),
            .frontmostApp = platform.frontmostApp(),
            .processRunner = platform.processRunner(),
            .languageModel = platform.languageModel(),
            .posterSharing = ground.posterSharing,
            .reducedMotion = platform.reducedMotion(),
            .autostart = platform.autostart(),
            .trayItem = platform.trayItem(),
            .cardStage = ground.surfaces.cardStage(),
            .viewEngine = ground.viewEngine,
            .panelHost = platform.panelHost(),
            .windowManager = platform.windowManager(),
            .screens = platform.screens(),
            .pointerPresses = platform.pointerPresses(),
            .shortcutsTool = shortcutsTool(),
            .reveal = [&platform](const QString& path) { platform.reveal(path); },
            .openShortcuts = [&platform] { return platform.openShortcuts(); },
            .makeNotch = [&ground] { return ground.surfaces.makeNotch(); },
            .makeRipple = [&ground] { return ground.ceremony.makeRipple(); },
            .calendar = &Calendar::current,
            // Told to end while the offer stands, it must not take that for "not now" and go on.
            .offerMoveToApplications =
                [&ground, &isEnding] {
                    return ground.installer.offerMoveToApplicationsIfNeeded() || isEnding;
                },
            .terminate = [] { QCoreApplication::quit(); },
            .alertAlreadyRunning = [&platform] { alertAlreadyRunning(platform.panelHost()); },
            .showRunningCopy = [&platform,
                                &isEnding] { return platform.showRunningCopy() || isEnding; },
            .startedUnasked = startedUnasked};
}

int run(bool startedUnasked, const QProcessEnvironment& environment) {
    AppDelegate* delegate = nullptr;
    bool isEnding = false;
    const auto stop = [&delegate] {
        if (delegate) delegate->applicationWillTerminate();
    };
    Ground ground({.activated =
                       [&delegate] {
                           if (delegate) delegate->applicationShouldHandleReopen();
                       },
                   .actionActivated =
                       [&delegate](const QString& action) {
                           if (delegate) delegate->performAction(action);
                       },
                   // Not quit(), which is deaf while an alert runs before the main loop.
                   .endRequested =
                       [&isEnding] {
                           isEnding = true;
                           QCoreApplication::exit();
                       },
                   // The toolkit has a connection of its own and may not notice.
                   .displayLost =
                       [&isEnding, stop] {
                           stop();
                           isEnding = true;
                           QCoreApplication::exit();
                       }},
                  environment);
    AppDelegate app(environmentOn(ground, startedUnasked, isEnding));
    if (!app.applicationDidFinishLaunching()) return EXIT_SUCCESS;
    delegate = &app;
    running.emplace(Running{app, ground});
    static thread_local const StopAtExit stopAtExit;
    ground.platform->listen();
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, stop);
    const int status = QApplication::exec();
    running.reset();
    delegate = nullptr;
    return status;
}

} // namespace

int HourfoldMain(int argc, char** argv) {
    // Nothing is ever printed, by the libraries either.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const bool startedUnasked = takeUnaskedMark();
    const QProcessEnvironment environment = userEnvironment();
    if (!platformfactory::desktopIsReachable()) return kNoDesktop;
    platformfactory::leaveMuteSessionBus();
    // In a Wayland session the windows are X11 windows, which can be placed and stay on top.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "xcb");
    // A bold that the face does not have would be drawn by smearing the regular one.
    qputenv("QT_NO_SYNTHESIZED_BOLD", "1");
    platformfactory::settleScaleFactor();
    // Views are drawn in software: no graphics driver is mapped, and a third of the memory
    // suffices.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    Ceremony::prepareProcess();
    describeApplication();
    const QApplication application(argc, argv);
    return run(startedUnasked, environment);
}

} // namespace vantle
