#include "base/Clock.h"
#include "launch/PlatformParts.h"
#include "platform/FirstFrontmostApp.h"
#include "platform/FirstHotKey.h"
#include "platform/FirstIdleSource.h"
#include "platform/ReportedFrontmostApp.h"
#include "platform/gnome/CustomKeyHotKey.h"
#include "platform/gnome/MutterIdleSource.h"
#include "platform/gnome/MutterScreenPower.h"
#include "platform/gnome/ShellFrontmostApp.h"
#include "platform/kde/KGlobalAccelHotKey.h"
#include "platform/kde/KWinFrontmostApp.h"
#include "platform/session/LateBus.h"
#include "platform/session/PortalHotKey.h"
#include "platform/wayland/LayerOverlayStage.h"
#include "platform/wayland/WaylandConnection.h"
#include "platform/wayland/WaylandIdleSource.h"
#include "platform/wayland/WaylandOutputPower.h"
#include "platform/wayland/WaylandToplevels.h"
#include "sensing/ScreenPowerUnion.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QStandardPaths>

#include <utility>
#include <vector>

namespace vantle::platformparts {

namespace {

struct Compositor {
    WaylandConnection connection;
    WaylandConnection shows; ///< separate: a protocol error in a show ends this connection alone
    SystemClock clock;
};

std::unique_ptr<HotKeyPort> shortcut(const QDBusConnection& bus, const Posix& posix,
                                     const Clock& clock) {
    std::vector<std::unique_ptr<OfferedHotKey>> ways;
    ways.reserve(3);
    ways.push_back(std::make_unique<KGlobalAccelHotKey>(bus, clock));
    ways.push_back(std::make_unique<PortalHotKey>(bus, LateBus::sessionAddress(), clock));
    ways.push_back(std::make_unique<CustomKeyHotKey>(
        bus, *posix.processRunner, QStandardPaths::findExecutable(QStringLiteral("gsettings"))));
    return std::make_unique<FirstHotKey>(std::move(ways));
}

} // namespace

void addCompositor(Scheduler& scheduler, const Posix& posix, Display& display) {
    const auto compositor = std::make_shared<Compositor>();
    WaylandConnection& wayland = compositor->connection;
    const QDBusConnection bus = QDBusConnection::sessionBus();

    std::vector<std::unique_ptr<IdleSource>> idle;
    idle.reserve(2);
    idle.push_back(std::make_unique<WaylandIdleSource>(wayland, compositor->clock));
    idle.push_back(std::make_unique<MutterIdleSource>(bus, compositor->clock));
    display.idleSource = std::make_unique<FirstIdleSource>(std::move(idle));

    const ReportedFrontmostApp::Reading reading{
        .scheduler = scheduler, .resolve = posix.identify, .oursHasTheKeyboard = [] {
            return QGuiApplication::focusWindow() != nullptr;
        }};
    std::vector<std::unique_ptr<FrontmostApp>> frontmost;
    frontmost.reserve(4);
    frontmost.push_back(std::make_unique<WaylandToplevels>(wayland, reading));
    frontmost.push_back(std::make_unique<KWinFrontmostApp>(bus, reading));
    frontmost.push_back(std::make_unique<ShellFrontmostApp>(
        bus, QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation), reading));
    frontmost.push_back(std::move(display.frontmostApp)); // last: it tells of X11 windows alone
    display.frontmostApp = std::make_unique<FirstFrontmostApp>(std::move(frontmost));

    std::vector<std::unique_ptr<ScreenPower>> power;
    power.reserve(3);
    power.push_back(std::move(display.screenPower));
    power.push_back(std::make_unique<WaylandOutputPower>(wayland));
    power.push_back(std::make_unique<MutterScreenPower>(bus));
    display.screenPower = std::make_unique<ScreenPowerUnion>(std::move(power));

    display.overlayStage =
        std::make_unique<LayerOverlayStage>(compositor->shows, compositor->clock, scheduler);

    display.hotKeyPort = shortcut(bus, posix, compositor->clock);
    display.compositor = compositor;
}

} // namespace vantle::platformparts
