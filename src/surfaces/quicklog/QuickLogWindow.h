// The specification of the quick log window.
//
// Main thread.
#pragma once

#include "surfaces/window/WindowSpec.h"

namespace vantle {

struct WindowParts;

[[nodiscard]] WindowSpec quickLogWindow(const WindowParts& parts);

} // namespace vantle
