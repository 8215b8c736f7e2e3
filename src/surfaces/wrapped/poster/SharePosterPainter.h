// The poster of a review, drawn.
//
// Needs an application object and no window; one thread at a time. Lengths in px of the poster.
#pragma once

#include "review/SharePoster.h"

#include <QSizeF>

class QPainter;

namespace vantle::shareposter {

/// How large the poster is: 422 wide, and as high as what stands on it.
[[nodiscard]] QSizeF size(const SharePoster& poster);

/// Draws the whole poster, its ground included, with its upper left corner at the origin. `scale`
/// is the number of device pixels in a px, which the painter accounts for already.
void draw(QPainter& painter, const SharePoster& poster, double scale);

} // namespace vantle::shareposter
