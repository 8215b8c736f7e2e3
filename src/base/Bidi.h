// Right-to-left names and dates within left-to-right sentences.
//
// Pure functions, any thread.
#pragma once

#include <QString>

namespace vantle::bidi {

/// Returns `part` for use in a sentence. Text that reads from right to left is wrapped in invisible
/// isolates (U+2068, U+2069), without which it would reorder the sentence; other text is returned
/// unchanged.
[[nodiscard]] QString isolated(const QString& part);

} // namespace vantle::bidi
