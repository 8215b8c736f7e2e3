// Images of which only the shape counts.
#pragma once

#include <QColor>
#include <QIcon>

namespace vantle {

/// The shape of `shape` in one colour, in every size that it has, or in those of trays if
/// it has any; where it is half transparent the colour is too. GUI thread.
[[nodiscard]] QIcon inColour(const QIcon& shape, const QColor& colour);

/// The colour of text in bars, as far as it can be known: the window text of the application's
/// palette, which follows the desktop's theme. No tray protocol tells the bar's own colours. White
/// where there is no palette, since most bars are dark.
[[nodiscard]] QColor barTextColour();

} // namespace vantle
