// The silent end of the program when the X server goes.
#pragma once

namespace vantle {

/// Qt uses Xlib for cursors and for its connection, and Xlib answers a lost server with a line on
/// standard error and exit(1). This suppresses the line. Call after constructing the application
/// object, which sets its own handler. Main thread.
void endSilentlyWithServer();

} // namespace vantle
