// Key combinations in words, for texts that a screen reader speaks.
//
// A screen reader skips ⌘ and ⌥, and the comma of "Ctrl+,". Pure, any thread.
#pragma once

#include <QString>

namespace vantle {

/// Returns the text with each combination spelled as the keys to press: "⌘D" becomes "Ctrl+D", "⌘,"
/// and "Ctrl+," become "Ctrl+Comma", "⌥⌘B" in either order becomes "Alt+Super+B". Other text is
/// returned unchanged.
[[nodiscard]] QString keySignsInWords(const QString& text);

} // namespace vantle
