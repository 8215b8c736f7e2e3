#include "platform/x11/ScaleFactor.h"

#include "platform/x11/X11Connection.h"

#include <QByteArray>

#include <xcb/xcb.h>

#include <algorithm>
#include <cmath>

namespace vantle::scalefactor {

namespace {

constexpr double kTenth = 0.1;
/// Far above that of any monitor. Any client may write any number into the resources.
constexpr double kMostFactor = 64;
constexpr double kMmPerInch = 25.4;

/// Longest resource property read, in 32-bit units.
constexpr std::uint32_t kMostResources = 65536;

double dpiOf(const xcb_screen_t& screen) {
    if (screen.width_in_millimeters == 0) return kUnscaled;
    // At least unscaled: televisions are large and watched from afar.
    return std::max(kUnscaled, screen.width_in_pixels * kMmPerInch / screen.width_in_millimeters);
}

} // namespace

std::optional<double> dpiAmong(QByteArrayView resources) {
    for (const QByteArray& line : resources.toByteArray().split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (colon < 0 || line.first(colon).trimmed() != "Xft.dpi") continue;
        bool isNumber = false;
        const double dpi = line.sliced(colon + 1).trimmed().toDouble(&isNumber);
        if (isNumber && std::isfinite(dpi) && dpi > 0) return dpi;
    }
    return std::nullopt;
}

std::optional<int> settledDpi(double dpi) {
    const double factor = dpi / kUnscaled;
    const double whole = std::round(factor);
    if (whole < 1 || whole > kMostFactor || factor == whole || std::abs(factor - whole) > kTenth)
        return std::nullopt;
    return static_cast<int>(whole * kUnscaled);
}

double desktopDpi() {
    int number = 0;
    xcb_connection_t* const connection = xcb_connect(nullptr, &number);
    double dpi = kUnscaled;
    if (xcb_connection_has_error(connection) == 0) {
        auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
        for (; screens.rem > 1 && number > 0; --number)
            xcb_screen_next(&screens);
        // Resources belong to the first screen, whichever is used.
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
        const XcbOwned<xcb_get_property_reply_t> answer(
            xcb_get_property_reply(connection,
                                   xcb_get_property(connection, 0, root, XCB_ATOM_RESOURCE_MANAGER,
                                                    XCB_ATOM_STRING, 0, kMostResources),
                                   nullptr));
        dpi = dpiAmong(bytesOf(answer.get())).value_or(dpiOf(*screens.data));
    }
    xcb_disconnect(connection);
    return dpi;
}

} // namespace vantle::scalefactor
