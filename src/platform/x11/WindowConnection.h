// The connection to the X server over which Qt makes its windows.
#pragma once

#include <xcb/xcb.h>

namespace vantle {

/// For requests about Qt's windows, which stay in order with Qt's own there. Null where those are
/// not X11 windows, and once the server is gone. Main thread.
[[nodiscard]] xcb_connection_t* windowConnection();

} // namespace vantle
