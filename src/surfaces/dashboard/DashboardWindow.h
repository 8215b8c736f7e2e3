// The specification of the hours window.
//
// Main thread.
#pragma once

#include "surfaces/window/WindowSpec.h"

namespace vantle {

struct WindowParts;

[[nodiscard]] WindowSpec dashboardWindow(const WindowParts& parts);

} // namespace vantle
