// The painter of a review's poster.
//
// Requires an application object; one thread at a time. Lengths in px of the poster.
#pragma once

#include "review/SharePoster.h"

#include <QSizeF>

class QPainter;

namespace vantle::shareposter {

/// Returns the poster's size: 422 wide, as high as its content.
[[nodiscard]] QSizeF size(const SharePoster& poster);

/// Draws the poster with its background at the origin. `scale` is in device pixels per px; the
/// painter already applies it.
void draw(QPainter& painter, const SharePoster& poster, double scale);

} // namespace vantle::shareposter
