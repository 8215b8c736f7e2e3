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

/// Returns whether the desktop started the program for no window: at login, or for a bus call.
/// Removes the marker, so that no child process inherits it.
bool takeUnaskedMark() {
    const bool marked = qEnvironmentVariableIsSet("VANTLE_AUTOSTART");
    qunsetenv("VANTLE_AUTOSTART");
    return marked;
}

/// Returns the environment for child processes: the session's, before the program sets variables,
/// without the two markers of its own start.
QProcessEnvironment userEnvironment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DESKTOP_STARTUP_ID"));
    environment.remove(QStringLiteral("XDG_ACTIVATION_TOKEN"));
    return environment;
}

void describeApplication() {
    // No display name: Qt would append it to every window title.
    QApplication::setApplicationName(QStringLiteral("vantle"));
    QApplication::setDesktopFileName(QStringLiteral("local.vantle.Vantle"));
    QApplication::setQuitOnLastWindowClosed(false);
    QDir::setSearchPaths(personaartwork::searchPrefix(), resourcefolders::all());
}

/// The running program, for the exit without unwinding: when the display server goes away, the
/// toolkit calls exit() from inside the event loop.
Program* running = nullptr;

/// A thread_local of the main thread. exit() destroys thread_local objects before it runs atexit()
/// handlers and destroys statics, such as the toolkit's fonts, which the ceremony's queue may still
/// use. Only here can the queues still finish.
struct StopAtExit {
    ~StopAtExit() {
        if (running) running->stopUnseen();
    }
};

int run(bool startedUnasked, const QProcessEnvironment& environment) {
    QtScheduler scheduler;
    const SystemClock clock{};
    Program* program = nullptr; // set while it runs
    bool isEnding = false;
    const auto end = [&isEnding] {
        isEnding = true;
        // Not quit(): it has no effect before exec(), where the alerts run.
        QCoreApplication::exit();
    };
    const auto stop = [&program] {
        if (program) program->stop();
    };
    const PlatformOwner platform =
        platformfactory::makePlatform(scheduler,
                                      {.activated =
                                           [&program] {
                                               if (program) program->reopen();
                                           },
                                       .actionActivated =
                                           [&program](const QString& action) {
                                               if (program) program->performAction(action);
                                           },
                                       .endRequested = end,
                                       // The toolkit has its own connection and may not notice.
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
    // Silences messages of the libraries too.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const bool startedUnasked = takeUnaskedMark();
    const QProcessEnvironment environment = userEnvironment();
    if (!platformfactory::desktopIsReachable()) return kNoDesktop;
    platformfactory::leaveMuteSessionBus();
    platformfactory::chooseWindows();
    // Without a bold face Qt would draw one by smearing the regular face.
    qputenv("QT_NO_SYNTHESIZED_BOLD", "1");
    platformfactory::settleScaleFactor();
    // The software renderer maps no graphics driver and uses a third of the memory.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    Ceremony::prepareProcess();
    describeApplication();
    const QApplication application(argc, argv);
    const Catalogues catalogues(QLocale().uiLanguages());
    return run(startedUnasked, environment);
}

} // namespace vantle
