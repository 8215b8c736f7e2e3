// The specification of the welcome window.
//
// Main thread.
#pragma once

#include "surfaces/window/WindowSpec.h"

namespace vantle {

struct WindowParts;

[[nodiscard]] WindowSpec welcomeWindow(const WindowParts& parts);

} // namespace vantle
