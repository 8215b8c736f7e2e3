// The notes as a window.
#pragma once

#include "surfaces/window/WindowSpec.h"

namespace vantle {

struct WindowParts;

[[nodiscard]] WindowSpec notesWindow(const WindowParts& parts);

} // namespace vantle
