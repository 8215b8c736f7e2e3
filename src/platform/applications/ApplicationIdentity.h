// The resolution of a window to its application.
#pragma once

#include "platform/WindowHints.h"
#include "platform/applications/DesktopEntryIndex.h"
#include "platform/applications/ProcessScope.h"

namespace vantle {

/// The first match counts: the window's application id; the process's sandbox, and in it the entry
/// with the window's class as StartupWMClass; the window class, then the instance, as
/// StartupWMClass, as id, as last part of an id, as Exec program; the process's program, or its
/// script; the process's systemd unit, unless a terminal's. Entries of interpreters that are hidden
/// and run in a terminal never match; a program alone matches no entry that is hidden or runs in a
/// terminal. Among several matches the one that the unit names wins, else the first.
///
/// Without an entry the sandbox's id, else the class (or instance, application id, script) is both
/// identity and name. Names of the interpreter itself ("python3", "Tk") are not used. All empty
/// when nothing is known.
///
/// The identity is the entry's id, or for popular tools their id in auto mode's tables. Pure
/// function, any thread.
[[nodiscard]] Application resolveIdentity(const WindowHints& hints, const ProcessScope& scope,
                                          const DesktopEntryIndex& index);

} // namespace vantle
