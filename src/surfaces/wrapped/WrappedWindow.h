// The review as a window.
#pragma once

#include "surfaces/window/WindowSpec.h"

namespace vantle {

struct WindowParts;

[[nodiscard]] WindowSpec wrappedWindow(const WindowParts& parts);

} // namespace vantle
