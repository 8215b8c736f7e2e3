// The poster as a PNG file.
//
// Requires an application object; one thread at a time.
#pragma once

#include "review/SharePoster.h"

#include <QByteArray>

#include <optional>

namespace vantle {

/// Image pixels per px of the poster.
inline constexpr double kShareScale = 2.0;

/// Renders the poster at twice its size, tagged as sRGB; empty when out of memory. Equal posters
/// give equal bytes. Needs no window.
[[nodiscard]] std::optional<QByteArray> renderSharePNG(const SharePoster& poster);

} // namespace vantle
