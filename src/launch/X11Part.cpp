#include "base/Clock.h"
#include "launch/PlatformParts.h"
#include "platform/CannotTell.h"
#include "platform/FirstHotKey.h"
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

#include <xcb/xcb.h>

#include <utility>
#include <vector>

namespace vantle::platformparts {

namespace {

struct X11Server {
    X11Connection x11;
    SystemClock clock;
    X11RawPresses presses{x11};
};

} // namespace

bool x11IsReachable() {
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    const bool reachable = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return reachable;
}

std::optional<int> x11SettledDpi() { return scalefactor::settledDpi(scalefactor::desktopDpi()); }

Display makeX11(Scheduler& scheduler, const PlatformEvents& events, const Posix& posix) {
    const auto server = std::make_shared<X11Server>();
    X11Connection& x11 = server->x11;
    endSilentlyWithServer();
    QObject::connect(&x11, &X11Connection::broken, &x11, [lost = events.displayLost] { lost(); });
    const XwaylandTraits xwayland = xwaylandTraits(x11);
    // Xwayland sees only input to X11 windows: such a counter would report absence wrongly.
    std::unique_ptr<IdleSource> idleSource = std::make_unique<NoIdleSource>();
    // A grab would get the keys over X11 windows only.
    std::unique_ptr<HotKeyPort> hotKeyPort =
        std::make_unique<FirstHotKey>(std::vector<std::unique_ptr<OfferedHotKey>>());
    if (!xwayland.isXwayland) {
        idleSource = std::make_unique<X11IdleSource>(x11, server->clock);
        hotKeyPort = std::make_unique<X11HotKey>(x11, scheduler);
    }
    return {.connection = server,
            .compositor = nullptr,
            .isXwayland = xwayland.isXwayland,
            .idleSource = std::move(idleSource),
            .frontmostApp = std::make_unique<X11FrontmostApp>(
                x11, scheduler, posix.identify,
                xwayland.isXwayland ? AppCoverage::Some : AppCoverage::All),
            .hotKeyPort = std::move(hotKeyPort),
            .screenPower = std::make_unique<X11ScreenPower>(x11, scheduler,
                                                            X11ScreenPower::powerManagement(x11)),
            .reservedStrips = std::make_unique<X11Struts>(x11),
            .overlayStage = nullptr,
            .panelHost = std::make_unique<X11PanelHost>(x11, scheduler, server->presses, xwayland),
            .windowManager = std::make_unique<X11WindowManager>(x11),
            .pointerPresses = std::make_unique<X11PointerPresses>(server->presses)};
}

} // namespace vantle::platformparts
