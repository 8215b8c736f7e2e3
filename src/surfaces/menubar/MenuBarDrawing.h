// The drawing of the tray images, at any size.
//
// Pure functions, any thread. Measures in units of an 18 x 18 square scaled to the requested size;
// images are square with a transparent background.
#pragma once

#include <QImage>

#include <cstdint>

namespace vantle::menubar {

/// Steps of one breath of the dot.
inline constexpr int kPhases = 8;

/// The wall with its last brick being laid, in black: a template image.
[[nodiscard]] QImage drawBrick(int pixels);

/// The dot of an open session in the skill's colour. `phase`, 0 to 7, is the step of the breath, 2
/// the fullest. Paused: faint, with two bars, not breathing. On a light bar the halo is twice as
/// strong and the bars are dark instead of white.
[[nodiscard]] QImage drawStatusDot(int pixels, std::uint32_t hexRGB, int phase, bool paused,
                                   bool onLight = false);

/// The image on a plate, for the open panel.
[[nodiscard]] QImage onPlate(const QImage& image);

} // namespace vantle::menubar
