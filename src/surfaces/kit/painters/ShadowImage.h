// The shadow of a rounded rectangle as a nine-patch image.
//
// Pure functions, any thread.
#pragma once

#include <QImage>
#include <QMargins>
#include <QSizeF>

namespace vantle {

/// Lengths in px or in device pixels, as the caller chooses; the offset points down.
struct ShadowShape {
    QSizeF size; ///< of the surface
    double radius = 0.0;
    double offset = 0.0;
    double blur = 0.0;
    double strength = 0.0; ///< opacity of black

    /// Returns the shape in device pixels. Its surface is rounded to whole ones, like the surface
    /// itself.
    [[nodiscard]] ShadowShape atScale(double scale) const;

    /// The shadow's reach beyond the surface.
    [[nodiscard]] QMargins reach() const;
    /// The unstretched margins of the image.
    [[nodiscard]] QMargins patches() const;
    /// Returns the smallest shape that stretches to this one.
    [[nodiscard]] ShadowShape smallest() const;

    friend bool operator==(const ShadowShape&, const ShadowShape&) = default;
};

/// Renders the shadow around a surface, one pixel per unit, and leaves out the part below it, since
/// surfaces are slightly translucent.
[[nodiscard]] QImage shadowImage(const ShadowShape& shape);

} // namespace vantle
