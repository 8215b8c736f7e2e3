#include "base/Clock.h"
#include "launch/PlatformParts.h"
#include "platform/FirstOverlayStage.h"
#include "platform/session/ApplicationService.h"
#include "platform/session/BusSessionStatus.h"
#include "platform/session/DesktopFileManager.h"
#include "platform/session/DesktopIdleInhibition.h"
#include "platform/session/DesktopReadingWishes.h"
#include "platform/session/DesktopReducedMotion.h"
#include "platform/session/LoginScreenPower.h"
#include "platform/session/PortalSaveDialog.h"
#include "platform/session/QtImageClipboard.h"
#include "platform/session/QtOverlayStage.h"
#include "platform/session/QtSaveDialog.h"
#include "platform/session/QtScreens.h"
#include "platform/session/SessionScreenPower.h"
#include "platform/tray/DesktopTrayItem.h"
#include "sensing/ScreenPowerUnion.h"

#include <QDBusConnection>

#include <utility>
#include <vector>

namespace vantle::platformparts {

namespace {

/// Finds the running copy over the session bus.
class BusRunningCopy final : public RunningCopy {
public:
    BusRunningCopy(const QDBusConnection& session, Scheduler& scheduler,
                   const PlatformEvents& events)
        : m_session(session)
        , m_scheduler(scheduler)
        , m_service(session) {
        QObject::connect(&m_service, &ApplicationService::activated, &m_service,
                         [activated = events.activated] { activated(); });
        QObject::connect(&m_service, &ApplicationService::actionActivated, &m_service,
                         [act = events.actionActivated](const QString& name) { act(name); });
    }

    /// What the program exports on the bus.
    [[nodiscard]] QObject& object() { return m_service; }

    void listen() override {
        // Without the bus name other copies cannot reach this one; everything else works.
        m_service.start();
    }
    [[nodiscard]] bool show() override {
        return ApplicationService::showRunningCopy(m_session, m_scheduler);
    }

private:
    const QDBusConnection m_session;
    Scheduler& m_scheduler;
    ApplicationService m_service;
};

std::unique_ptr<ScreenPower> unite(std::unique_ptr<ScreenPower> display,
                                   const QDBusConnection& session) {
    std::vector<std::unique_ptr<ScreenPower>> sources;
    sources.reserve(3);
    sources.push_back(std::move(display));
    sources.push_back(std::make_unique<SessionScreenPower>(session));
    sources.push_back(std::make_unique<LoginScreenPower>(LateBus::systemAddress(),
                                                         qEnvironmentVariable("XDG_SESSION_ID")));
    return std::make_unique<ScreenPowerUnion>(std::move(sources));
}

} // namespace

Session makeSession(Scheduler& scheduler, const PlatformEvents& events, const Posix& posix,
                    Display& display) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    auto otherSaveDialog = std::make_unique<QtSaveDialog>();
    SaveDialog& otherwise = *otherSaveDialog;
    auto screens = std::make_unique<QtScreens>(*display.reservedStrips, !display.isXwayland);
    auto clock = std::make_unique<SystemClock>();
    auto runningCopy = std::make_unique<BusRunningCopy>(bus, scheduler, events);
    auto sessionStatus = std::make_unique<BusSessionStatus>(bus, runningCopy->object());
    std::vector<std::unique_ptr<OverlayStage>> overlays;
    overlays.reserve(2);
    if (display.overlayStage) overlays.push_back(std::move(display.overlayStage));
    overlays.push_back(
        std::make_unique<QtOverlayStage>(*clock, scheduler, *screens, *display.panelHost));
    return {.idleInhibition =
                std::make_unique<DesktopIdleInhibition>(bus, LateBus::systemAddress()),
            .screenPower = unite(std::move(display.screenPower), bus),
            .screens = std::move(screens),
            .clock = std::move(clock),
            .overlayStage = std::make_unique<FirstOverlayStage>(std::move(overlays)),
            .readingWishes = std::make_unique<DesktopReadingWishes>(bus),
            .reducedMotion = std::make_unique<DesktopReducedMotion>(bus, posix.folders.config),
            .trayItem = std::make_unique<DesktopTrayItem>(bus, !display.isXwayland),
            .imageClipboard = std::make_unique<QtImageClipboard>(),
            .otherSaveDialog = std::move(otherSaveDialog),
            .saveDialog = std::make_unique<PortalSaveDialog>(bus, otherwise),
            .fileManager = std::make_unique<DesktopFileManager>(bus, *posix.processRunner),
            .runningCopy = std::move(runningCopy),
            .sessionStatus = std::move(sessionStatus)};
}

} // namespace vantle::platformparts
