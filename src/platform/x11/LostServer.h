// What Xlib does when the X server goes away.
#pragma once

namespace vantle {

/// Qt draws cursors and opens its connection by Xlib, which answers a lost server by a line on the
/// standard error output and exit(1). From here on it ends without the line: the program prints
/// nothing. Call it after the application object is made, which sets a handler of its own. Main
/// thread.
void endSilentlyWithServer();

} // namespace vantle
