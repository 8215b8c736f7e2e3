// The soft shadow of a rounded rectangle, as one image whose edges stretch.
//
// Pure functions, any thread.
#pragma once

#include <QImage>
#include <QMarginsF>
#include <QSizeF>

namespace vantle {

/// Lengths in px; the offset points down.
struct ShadowShape {
    QSizeF size; ///< of the surface that throws it
    double radius = 0.0;
    double offset = 0.0;
    double blur = 0.0;
    double strength = 0.0; ///< opacity of black

    /// How far the shadow reaches beyond the surface.
    [[nodiscard]] QMarginsF reach() const;
    /// The parts of the image that don't stretch, from each of its edges.
    [[nodiscard]] QMarginsF patches() const;
    /// The shape with the smallest size that can be stretched to this one.
    [[nodiscard]] ShadowShape smallest() const;

    friend bool operator==(const ShadowShape&, const ShadowShape&) = default;
};

/// The shadow around a surface, without what is below the surface itself: surfaces are not quite
/// opaque. `scale` is device pixels per px.
[[nodiscard]] QImage shadowImage(const ShadowShape& shape, double scale);

} // namespace vantle
