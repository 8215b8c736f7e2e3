// The settings as a window.
#pragma once

#include "surfaces/window/WindowSpec.h"

namespace vantle {

struct WindowParts;

[[nodiscard]] WindowRules settingsWindowRules();
[[nodiscard]] WindowSpec settingsWindow(const WindowParts& parts);

} // namespace vantle
