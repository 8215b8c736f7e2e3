// The painter of the background dots and the shooting star.
//
// Pure drawing, any thread. Lengths in px.
#pragma once

#include "review/WrappedMotion.h"

#include <QImage>
#include <QPointF>
#include <QSizeF>

#include <optional>

namespace vantle::ambientdot {

/// Returns the distance from the dot's centre to the edge of its halo.
[[nodiscard]] double reach(const wrappedmotion::AmbientDot& dot);

/// Returns the opacity of the dot's centre at its brightest, 0 to 1.
[[nodiscard]] double strength(const wrappedmotion::AmbientDot& dot);

/// Returns the lowest light of the dot, relative to its brightest.
[[nodiscard]] double darkest(const wrappedmotion::AmbientDot& dot);

/// Returns the dot at its brightest, centred; the image has its scale as device pixel ratio.
[[nodiscard]] QImage image(const wrappedmotion::AmbientDot& dot, double scale);

/// A shooting star: its head, and its brightness from 0 to 1.
struct Star {
    QPointF head;
    double light = 0;
};
/// Returns the visible star; empty when there is none. `seconds` is the age of the field.
[[nodiscard]] std::optional<Star> star(double seconds, QSizeF field);

/// Returns the star with its tail; the head is in the lower right corner.
[[nodiscard]] QImage starImage(double scale);

} // namespace vantle::ambientdot
