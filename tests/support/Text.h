// Texts in tests.
#pragma once

#include <QString>

namespace vantle::tests {

/// Converts a literal to QString; its cost does not matter in tests.
[[nodiscard]] inline QString text(const char* utf8) { return QString::fromUtf8(utf8); }

} // namespace vantle::tests
