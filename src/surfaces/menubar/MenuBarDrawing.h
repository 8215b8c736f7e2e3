// How the tray images look, at any size.
//
// Pure functions, any thread. All measures are in units of an 18 x 18 square that is stretched to
// the size asked for; images are square, transparent where nothing is drawn.
#pragma once

#include <QImage>

#include <cstdint>

namespace vantle::menubar {

/// Steps of one breath of the dot.
inline constexpr int kPhases = 8;

/// The little wall whose last brick is being laid, in black: its shape is what counts.
[[nodiscard]] QImage drawBrick(int pixels);

/// The dot of an open session in the skill's colour. `phase`, 0 to 7, is the step of the breath; 2
/// is the fullest. Paused, it is faint, has two white bars, and does not breathe.
[[nodiscard]] QImage drawStatusDot(int pixels, std::uint32_t hexRGB, int phase, bool paused);

/// The same image on a plate, as while the panel is open.
[[nodiscard]] QImage onPlate(const QImage& image);

} // namespace vantle::menubar
