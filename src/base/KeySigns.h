// Keys in words, for texts that are heard: a reader passes over ⌘ and ⌥, and over the comma of
// "Ctrl+,". Pure, any thread.
#pragma once

#include <QString>

namespace vantle {

/// The text with each combination of signs as the keys that do it: "⌘D" is "Ctrl+D", "⌘," like
/// "Ctrl+," is "Ctrl+Comma", "⌥⌘B" in either order is "Alt+Super+B". Any other text comes back as
/// it is.
[[nodiscard]] QString keySignsInWords(const QString& text);

} // namespace vantle
