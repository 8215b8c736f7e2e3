// The table of the program's windows.
#pragma once

namespace vantle {

struct WindowParts;

/// Adds every window to the router. The command center lists its rows in this order. Main thread,
/// once.
void addWindows(const WindowParts& parts);

} // namespace vantle
