// The name of a mode in texts for the user.
//
// An empty name stands for no skill. Pure functions, any thread.
#pragma once

#include <QString>

namespace vantle::vantlecopy {

/// "Writing" gives "Writing mode", "Dark Mode" stays as it is; an empty name or "Building" gives
/// "Vantle".
[[nodiscard]] QString modeName(const QString& skillName);

/// Whether `modeName` adds the word: for "Writing", not for "Dark Mode".
[[nodiscard]] bool addsMode(const QString& skillName);

/// "You are in Writing mode"
[[nodiscard]] QString ceremonyTitle(const QString& skillName);

/// "In Writing mode"
[[nodiscard]] QString activeStatus(const QString& skillName);

} // namespace vantle::vantlecopy
