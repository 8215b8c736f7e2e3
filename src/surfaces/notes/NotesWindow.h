// The specification of the notes window.
//
// Main thread.
#pragma once

#include "surfaces/window/WindowSpec.h"

namespace vantle {

struct WindowParts;

[[nodiscard]] WindowSpec notesWindow(const WindowParts& parts);

} // namespace vantle
