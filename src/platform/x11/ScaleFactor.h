// The desktop's scale factor, rounded if nearly whole.
//
// Any thread.
#pragma once

#include <QByteArrayView>

#include <optional>

namespace vantle::scalefactor {

/// Dots per inch at a factor of 1.
inline constexpr double kUnscaled = 96.0;

/// Returns `Xft.dpi` among the server's resources; empty without a number above 0. Pure.
[[nodiscard]] std::optional<double> dpiAmong(QByteArrayView resources);

/// Returns the dots per inch of the next whole factor if that of `dpi` is within a tenth of it;
/// empty otherwise. Pure.
///
/// Desktops that compute it from the monitor's size arrive at 99 or 100. A factor of 1.03 would put
/// every edge between two pixels, for text half a pixel taller.
[[nodiscard]] std::optional<int> settledDpi(double dpi);

/// Returns the dots per inch that Qt finds on $DISPLAY: `Xft.dpi` from the server's resources, else
/// from the screen's size; kUnscaled without a server. Works without an application object.
[[nodiscard]] double desktopDpi();

} // namespace vantle::scalefactor
