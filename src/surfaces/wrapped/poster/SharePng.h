// The poster as a picture to give away.
#pragma once

#include "review/SharePoster.h"

#include <QByteArray>

#include <optional>

namespace vantle {

/// Pixels in a px of the poster.
inline constexpr double kShareScale = 2.0;

/// The poster as a PNG at twice its size, in sRGB and told so; nothing when there is no memory for
/// it. The same poster gives the same bytes. Needs an application object and no window.
[[nodiscard]] std::optional<QByteArray> renderSharePNG(const SharePoster& poster);

} // namespace vantle
