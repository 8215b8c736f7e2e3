#include "launch/HourfoldApp.h"

#include "base/Clock.h"
#include "base/SerialQueue.h"
#include "launch/Catalogues.h"
#include "launch/Ceremony.h"
#include "launch/PlatformFactory.h"
#include "launch/Program.h"
#include "launch/ResourceFolders.h"
#include "review/drawing/PersonaArtwork.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QProcessEnvironment>
#include <QQuickWindow>

#include <cstdlib>
#include <memory>

namespace vantle {

namespace {

constexpr int kNoDesktop = 69; // EX_UNAVAILABLE

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

void describeApplication() {
    // No display name besides: it would be appended to the title of every window.
    QApplication::setApplicationName(QStringLiteral("vantle"));
    QApplication::setDesktopFileName(QStringLiteral("local.vantle.Vantle"));
    QApplication::setQuitOnLastWindowClosed(false);
    QDir::setSearchPaths(personaartwork::searchPrefix(), resourcefolders::all());
}

/// The running program, for the one exit that unwinds nothing: when the display server goes away,
/// the toolkit calls exit() from inside the event loop.
Program* running = nullptr;

/// Of the main thread. exit() destroys what belongs to its thread before it runs the handlers of
/// atexit() and destroys what is static, the toolkit's fonts included, which the ceremony's queue
/// may be using. So this is the one place where the queues can still come to their end.
struct StopAtExit {
    ~StopAtExit() {
        if (running) running->stopUnseen();
    }
};

int run(bool startedUnasked, const QProcessEnvironment& environment) {
    QtScheduler scheduler;
    const SystemClock clock{};
    Program* program = nullptr; // while it is up
    bool isEnding = false;
    const auto end = [&isEnding] {
        isEnding = true;
        // Not quit(): it has no effect before exec(), where the alerts run.
        QCoreApplication::exit();
    };
    const auto stop = [&program] {
        if (program) program->stop();
    };
    const PlatformOwner platform = platformfactory::makePlatform(
        scheduler,
        {.activated =
             [&program] {
                 if (program) program->reopen();
             },
         .actionActivated =
             [&program](const QString& action) {
                 if (program) program->performAction(action);
             },
         .endRequested = end,
         // The toolkit has a connection of its own and may not notice.
         .displayLost =
             [stop, end] {
                 stop();
                 end();
             }},
        environment);
    Program made(
        platform.ports(),
        {.clock = clock,
         .scheduler = scheduler,
         .makeQueue = [](const QString& label) { return std::make_unique<ThreadQueue>(label); },
         .calendar = &Calendar::current,
         .terminate = [] { QCoreApplication::quit(); },
         .isEnding = [&isEnding] { return isEnding; },
         .startedUnasked = startedUnasked});
    if (!made.start()) return EXIT_SUCCESS;
    program = running = &made;
    static thread_local const StopAtExit stopAtExit;
    platform.session.runningCopy->listen();
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, stop);
    const int status = QApplication::exec();
    program = running = nullptr;
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
    platformfactory::chooseWindows();
    // A bold that the face does not have would be drawn by smearing the regular one.
    qputenv("QT_NO_SYNTHESIZED_BOLD", "1");
    platformfactory::settleScaleFactor();
    // Views are drawn in software: no graphics driver is mapped, and a third of the memory
    // suffices.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    Ceremony::prepareProcess();
    describeApplication();
    const QApplication application(argc, argv);
    const Catalogues catalogues(QLocale().uiLanguages());
    return run(startedUnasked, environment);
}

} // namespace vantle
