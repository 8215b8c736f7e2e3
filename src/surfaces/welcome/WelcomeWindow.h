// The welcome as a window.
#pragma once

#include "surfaces/window/WindowSpec.h"

namespace vantle {

struct WindowParts;

[[nodiscard]] WindowSpec welcomeWindow(const WindowParts& parts);

} // namespace vantle
