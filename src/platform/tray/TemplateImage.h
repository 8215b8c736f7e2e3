// Template images: shapes to be coloured.
#pragma once

#include <QColor>
#include <QIcon>

#include <optional>

namespace vantle {

/// Returns the shape in one colour with its alpha, in every size that the icon has, or in tray
/// sizes if it draws any size. GUI thread.
[[nodiscard]] QIcon inColour(const QIcon& shape, const QColor& colour);

/// The same for an unknown background: with a thin outline around nearly opaque pixels, black for a
/// light colour and white for a dark one.
[[nodiscard]] QIcon inColourWithEdge(const QIcon& shape, const QColor& colour);

/// Whether the colour is darker than middle gray.
[[nodiscard]] bool isDark(const QColor& colour);

/// Returns the colour for a bar's text: the window text of the palette, which follows the theme;
/// white without a palette. On a known background with too little contrast, such as a dark bar
/// without a theme, black or white.
[[nodiscard]] QColor barTextColour(const std::optional<QColor>& ground);

} // namespace vantle
