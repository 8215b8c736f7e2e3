// The session in which a part of the desktop can't be seen, in the user's words.
#pragma once

#include "base/Words.h"

#include <QString>

namespace vantle {

/// What users know a session by in which the program's windows are guests of another display
/// server: there a shortcut is not heard over every application, and windows without an input
/// region swallow clicks.
[[nodiscard]] inline QString guestSession() { return Words::tr("Wayland session"); }

} // namespace vantle
