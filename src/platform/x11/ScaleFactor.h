// How large the desktop wants everything drawn.
#pragma once

#include <optional>

namespace vantle::scalefactor {

/// The dots per inch that stand for a factor of 1.
inline constexpr double kUnscaled = 96.0;

/// The dots per inch of the next whole factor, where that of `dpi` is within a tenth of it; empty
/// for all others, which are as they are meant. Pure.
///
/// Desktops that take the size of the monitor for the size of text come out at 99 or 100. Drawn by
/// 1.03 every edge would lie between two pixels, for a text that is half a pixel higher.
[[nodiscard]] std::optional<int> settledDpi(double dpi);

/// The dots per inch that Qt finds on $DISPLAY: `Xft.dpi` of the server's resources, else by the
/// size of the screen. Unscaled where there is no server. Needs no application object.
[[nodiscard]] double desktopDpi();

} // namespace vantle::scalefactor
