// Images of which only the shape counts.
#pragma once

#include <QColor>
#include <QIcon>

#include <optional>

namespace vantle {

/// The shape of `shape` in one colour, in every size that it has, or in those of trays if
/// it has any; where it is half transparent the colour is too. GUI thread.
[[nodiscard]] QIcon inColour(const QIcon& shape, const QColor& colour);

/// The same for a ground that is not known: a thin edge, black around a light colour and white
/// around a dark one, goes along whatever is about opaque, so that the shape is seen on any ground.
[[nodiscard]] QIcon inColourWithEdge(const QIcon& shape, const QColor& colour);

/// The colour of a bar's text, as far as it can be known: the window text of the application's
/// palette, which follows the desktop's theme; white where there is no palette. Where the bar's
/// ground is known and that colour would hardly be seen on it, as without a theme on a dark bar,
/// black or white.
[[nodiscard]] QColor barTextColour(const std::optional<QColor>& ground);

} // namespace vantle
