// The text of a shortcut's keys, for the user.
//
// Pure function, any thread.
#pragma once

#include <QString>

namespace vantle {

/// Returns an accelerator such as "<Alt><Super>b", "LOGO+ALT+b" or "Press Ctrl+Super+F9" as
/// "Ctrl+Super+F9". Empty for the default combination, Alt+Super+B, in any order and notation, and
/// for an empty one.
[[nodiscard]] QString acceleratorText(const QString& accelerator);

} // namespace vantle
