// The specification of the review window.
//
// Main thread.
#pragma once

#include "surfaces/window/WindowSpec.h"

namespace vantle {

struct WindowParts;

[[nodiscard]] WindowSpec wrappedWindow(const WindowParts& parts);

} // namespace vantle
