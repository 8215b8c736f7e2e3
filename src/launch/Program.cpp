#include "launch/Program.h"

#include "base/SerialQueue.h"
#include "base/Words.h"
#include "launch/InstallLocation.h"
#include "platform/FileManager.h"
#include "platform/ProcessRunner.h"
#include "platform/ReadingWishes.h"
#include "platform/ReducedMotion.h"
#include "sensing/AutoRules.h"
#include "surfaces/alert/ModalPresenter.h"
#include "surfaces/kit/tokens/ContrastPalette.h"
#include "surfaces/kit/tokens/DarkUI.h"
#include "surfaces/kit/tokens/Motion.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QStorageInfo>

namespace vantle {

namespace {

void alertAlreadyRunning(const Platform& platform) {
    (void)modalpresenter::runAlert(
        {Words::tr("Vantle is already running"),
         Words::tr("Another copy of Vantle is already using this Mac's data. This one will close "
                   "so your history stays safe."),
         {Words::tr("OK")}},
        platform.panelHost, platform.windowManager, platform.screens);
}

/// The program that runs the user's shortcuts is installed beside this one.
QString shortcutsTool() {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/vantle-shortcuts");
}

/// Describes this program's place to the installer. A place that the user chose on purpose is
/// proper.
AppInstaller::Place thisProgram(FileSystem& files) {
    const QString folder = QCoreApplication::applicationDirPath();
    const bool isOnPurpose = installlocation::isOnPurpose(files, folder);
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

AppInstaller::Operations installOperations(const Platform& platform) {
    return {.runAlert =
                [platform](const Alert& alert) {
                    return modalpresenter::runAlert(alert, platform.panelHost,
                                                    platform.windowManager, platform.screens);
                },
            .moveToTrash = [&files = platform.fileManager](
                               const QString& path) { return files.moveToTrash(path); },
            .reveal = [&files = platform.fileManager](const QString& path) { files.reveal(path); },
            .start =
                [&runner = platform.processRunner](const QString& program) {
                    return runner.startDetached({program, {}});
                },
            .terminate = [] { QCoreApplication::exit(); }};
}

} // namespace

Program::Program(const Platform& platform, const Process& process)
    : m_platform(platform)
    , m_process(process)
    , m_paths(platform.fileSystem, platform.folders.data)
    , m_ioQueue(process.makeQueue(QStringLiteral("local.vantle.tracker-io")))
    , m_autoSkillQueue(process.makeQueue(QLatin1String(AutoRules::ioQueueLabel)))
    , m_exportQueue(process.makeQueue(QStringLiteral("local.vantle.export-io")))
    , m_posterSharing({platform.imageClipboard, platform.saveDialog, platform.fileSystem,
                       process.scheduler, *m_exportQueue})
    , m_installer(platform.preferences, platform.fileSystem, thisProgram(platform.fileSystem),
                  installOperations(platform))
    , m_ceremony(m_platform, process.clock, process.scheduler,
                 process.makeQueue(QLatin1String(RippleOverlayController::prepQueueLabel)))
    , m_textScale(qGuiApp->devicePixelRatio())
    , m_viewEngine(process.scheduler,
                   [this](QQmlEngine& engine) {
                       Motion::of(engine)->setReduced(m_platform.reducedMotion.enabled());
                       const ReadingWishes& wishes = m_platform.readingWishes;
                       DarkUI* const tokens = DarkUI::of(engine);
                       tokens->setPalette(wishes.moreContrast() ? look::kContrasted : look::kDark);
                       tokens->setTextScale(m_textScale.beyondScreen(wishes.textScale()));
                   })
    , m_surfaces(m_platform, process.scheduler, m_viewEngine)
    , m_delegate(environment()) {
    QObject::connect(&platform.reducedMotion, &ReducedMotion::changed, &m_context,
                     [this] { m_viewEngine.refresh(); });
    QObject::connect(&platform.readingWishes, &ReadingWishes::changed, &m_context,
                     [this] { m_viewEngine.refresh(); });
}

Program::~Program() = default;

AppDelegate::Environment Program::environment() {
    return {.platform = m_platform,
            .clock = m_process.clock,
            .scheduler = m_process.scheduler,
            .ioQueue = *m_ioQueue,
            .autoSkillQueue = *m_autoSkillQueue,
            .paths = m_paths,
            .posterSharing = m_posterSharing,
            .cardStage = m_surfaces.cardStage(),
            .viewEngine = m_viewEngine,
            .shortcutsTool = shortcutsTool(),
            .makeNotch = [this] { return m_surfaces.makeNotch(); },
            .makeRipple = [this] { return m_ceremony.makeRipple(); },
            .calendar = m_process.calendar,
            // A request to end the program closes the alert; the answer must not count as "not
            // now".
            .offerMoveToApplications =
                [this] {
                    return m_installer.offerMoveToApplicationsIfNeeded() || m_process.isEnding();
                },
            .terminate = m_process.terminate,
            .alertAlreadyRunning =
                [this] {
                    if (!m_process.isEnding()) alertAlreadyRunning(m_platform);
                },
            .startedUnasked = m_process.startedUnasked};
}

bool Program::start() {
    m_isUp = m_delegate.applicationDidFinishLaunching();
    return m_isUp;
}

void Program::reopen() {
    if (m_isUp) m_delegate.applicationShouldHandleReopen();
}

void Program::performAction(const QString& name) {
    if (m_isUp) m_delegate.performAction(name);
}

void Program::stop() {
    if (m_isUp) m_delegate.applicationWillTerminate();
}

void Program::stopUnseen() {
    m_delegate.applicationWillTerminateUnseen();
    m_ceremony.settle();
    m_exportQueue->drain();
}

} // namespace vantle
