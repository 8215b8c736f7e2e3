// Texts in tests.
#pragma once

#include <QString>

namespace vantle::tests {

/// A literal as the program's string: in tests the letters matter more than the cost.
[[nodiscard]] inline QString text(const char* utf8) { return QString::fromUtf8(utf8); }

} // namespace vantle::tests
