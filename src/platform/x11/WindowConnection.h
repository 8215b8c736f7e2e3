// Qt's own connection to the X server.
#pragma once

#include <xcb/xcb.h>

namespace vantle {

/// For requests about Qt's windows, which stay in order with Qt's requests. Null when Qt does not
/// use X11, and once the server is lost. Main thread.
[[nodiscard]] xcb_connection_t* windowConnection();

} // namespace vantle
