// The user's term for a session of another display server.
//
// Any thread.
#pragma once

#include "base/Words.h"

#include <QString>

namespace vantle {

/// For texts about sessions in which the program's windows run under another display server:
/// shortcuts work over some windows only, and windows without an input region take clicks.
[[nodiscard]] inline QString guestSession() { return Words::tr("Wayland session"); }

} // namespace vantle
