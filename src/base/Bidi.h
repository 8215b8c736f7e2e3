// Names and dates of right-to-left scripts within the program's own sentences.
//
// Pure functions, any thread.
#pragma once

#include <QString>

namespace vantle::bidi {

/// `part` for a place in a sentence: a text that reads from right to left gets invisible isolates
/// (U+2068, U+2069) around it, without which it would turn the sentence round. Any other text is
/// returned as it is.
[[nodiscard]] QString isolated(const QString& part);

} // namespace vantle::bidi
