// The soft shadow of a rounded rectangle, as one image whose edges stretch.
//
// Pure functions, any thread.
#pragma once

#include <QImage>
#include <QMargins>
#include <QSizeF>

namespace vantle {

/// Lengths in px or in device pixels, as the caller has them; the offset points down.
struct ShadowShape {
    QSizeF size; ///< of the surface that throws it
    double radius = 0.0;
    double offset = 0.0;
    double blur = 0.0;
    double strength = 0.0; ///< opacity of black

    /// The shape in device pixels, of which a px has so many. Its surface begins and ends on whole
    /// ones, as the surface itself does.
    [[nodiscard]] ShadowShape atScale(double scale) const;

    /// How far the shadow reaches beyond the surface.
    [[nodiscard]] QMargins reach() const;
    /// The parts of the image that don't stretch, from each of its edges.
    [[nodiscard]] QMargins patches() const;
    /// The shape with the smallest size that can be stretched to this one.
    [[nodiscard]] ShadowShape smallest() const;

    friend bool operator==(const ShadowShape&, const ShadowShape&) = default;
};

/// The shadow around a surface, without what is below the surface itself: surfaces are not quite
/// opaque. A pixel for a unit of the shape.
[[nodiscard]] QImage shadowImage(const ShadowShape& shape);

} // namespace vantle
