// What a dot behind the pages of a review looks like, and the star that crosses them.
//
// Pure drawing, any thread. Lengths are in px.
#pragma once

#include "review/WrappedMotion.h"

#include <QImage>
#include <QPointF>
#include <QSizeF>

#include <optional>

namespace vantle::ambientdot {

/// From the dot's centre to where its halo ends.
[[nodiscard]] double reach(const wrappedmotion::AmbientDot& dot);

/// The dot at its brightest, with its centre in the image's; the image carries its scale.
[[nodiscard]] QImage image(const wrappedmotion::AmbientDot& dot, double scale);

/// A shooting star on its way: its head, and its light from 0 to 1.
struct Star {
    QPointF head;
    double light = 0;
};
/// None while none crosses. `seconds` is the age of the field.
[[nodiscard]] std::optional<Star> star(double seconds, QSizeF field);

/// The star with its tail; its head is in the lower right corner.
[[nodiscard]] QImage starImage(double scale);

} // namespace vantle::ambientdot
