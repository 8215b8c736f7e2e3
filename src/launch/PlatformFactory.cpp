#include "launch/PlatformFactory.h"

#include "platform/session/BusGreeting.h"
#include "platform/session/LateBus.h"

#include <utility>

namespace vantle {

Platform PlatformOwner::ports() const {
    return {.fileSystem = *posix.fileSystem,
            .folders = posix.folders,
            .preferences = *posix.preferences,
            .processRunner = *posix.processRunner,
            .languageModel = *posix.languageModel,
            .autostart = *posix.autostart,
            .idleSource = *display.idleSource,
            .idleInhibition = *session.idleInhibition,
            .frontmostApp = *display.frontmostApp,
            .hotKeyPort = *display.hotKeyPort,
            .panelHost = *display.panelHost,
            .windowManager = *display.windowManager,
            .pointerPresses = *display.pointerPresses,
            .screenPower = *session.screenPower,
            .screens = *session.screens,
            .overlayStage = *session.overlayStage,
            .readingWishes = *session.readingWishes,
            .reducedMotion = *session.reducedMotion,
            .trayItem = *session.trayItem,
            .imageClipboard = *session.imageClipboard,
            .saveDialog = *session.saveDialog,
            .fileManager = *session.fileManager,
            .runningCopy = *session.runningCopy,
            .sessionStatus = *session.sessionStatus};
}

namespace platformfactory {

// X11 in a Wayland session too: only X11 windows can be placed and stay on top.

bool desktopIsReachable() { return platformparts::x11IsReachable(); }

void chooseWindows() {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", platformparts::kX11Windows);
}

void leaveMuteSessionBus() {
    constexpr int kLimitMs = 1000;
    if (BusGreeting(LateBus::sessionAddress()).waitForAnswer(kLimitMs) ==
        BusGreeting::Answer::Waiting)
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
}

void settleScaleFactor() {
    constexpr const char* kDpi = "QT_FONT_DPI";
    for (const char* told : {kDpi, "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS",
                             "QT_SCALE_FACTOR_ROUNDING_POLICY", "QT_USE_PHYSICAL_DPI"})
        if (qEnvironmentVariableIsSet(told)) return;
    // None of Qt's rounding policies keeps 1.25 and 1.5.
    if (const auto dpi = platformparts::x11SettledDpi()) qputenv(kDpi, QByteArray::number(*dpi));
}

PlatformOwner makePlatform(Scheduler& scheduler, const PlatformEvents& events,
                           const QProcessEnvironment& environment) {
    auto posix = platformparts::makePosix(scheduler, environment);
    auto display = platformparts::makeX11(scheduler, events, posix);
    if (display.isXwayland) platformparts::addCompositor(scheduler, posix, display);
    auto session = platformparts::makeSession(scheduler, events, posix, display);
    return {std::move(posix), std::move(display), std::move(session),
            platformparts::watchSignals(events)};
}

} // namespace platformfactory
} // namespace vantle
