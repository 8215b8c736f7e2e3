// The specification of the settings window.
//
// Main thread.
#pragma once

#include "surfaces/window/WindowSpec.h"

namespace vantle {

struct WindowParts;

[[nodiscard]] WindowRules settingsWindowRules();
[[nodiscard]] WindowSpec settingsWindow(const WindowParts& parts);

} // namespace vantle
