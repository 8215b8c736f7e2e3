// A shortcut's keys as desktops write them, and as the user reads them.
#pragma once

#include <QString>

namespace vantle {

/// The user's words for an accelerator such as "<Alt><Super>b", "LOGO+ALT+b" or "Press
/// Alt+Super+B": "Ctrl+Super+F9". Empty for the fixed combination, Alt+Super+B, in whatever order
/// and words, and for nothing at all.
[[nodiscard]] QString acceleratorText(const QString& accelerator);

} // namespace vantle
