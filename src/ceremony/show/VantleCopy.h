// How a mode is named in what the user reads. Pure functions, any thread.
//
// No skill at all is an empty name.
#pragma once

#include <QString>

namespace vantle::vantlecopy {

/// "Writing" gives "Writing mode", "Dark Mode" stays as it is; no name, or that of the plain
/// building skill, gives "Vantle".
[[nodiscard]] QString modeName(const QString& skillName);

/// Whether `modeName` adds the word: for "Writing", not for "Dark Mode".
[[nodiscard]] bool addsMode(const QString& skillName);

/// "You are in Writing mode"
[[nodiscard]] QString ceremonyTitle(const QString& skillName);

/// "In Writing mode"
[[nodiscard]] QString activeStatus(const QString& skillName);

} // namespace vantle::vantlecopy
