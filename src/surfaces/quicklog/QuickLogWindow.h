// The form that adds time by hand as a window.
#pragma once

#include "surfaces/window/WindowSpec.h"

namespace vantle {

struct WindowParts;

[[nodiscard]] WindowSpec quickLogWindow(const WindowParts& parts);

} // namespace vantle
