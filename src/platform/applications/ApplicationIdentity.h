// Finds the application that a window belongs to.
#pragma once

#include "platform/WindowHints.h"
#include "platform/applications/DesktopEntryIndex.h"
#include "platform/applications/ProcessScope.h"

namespace vantle {

/// The first of these that names an entry: the window's own application id; the sandbox of its
/// process, and in it the entry whose StartupWMClass the window has; the window class, then the
/// instance, as StartupWMClass, as an id, as the last part of one, as the program of Exec; the
/// program of the process, the script that it runs; the unit that its process was started as,
/// unless that is a terminal's. Entries of interpreters, hidden and run in a terminal, are no
/// application's; by its program alone none that is hidden or run in a terminal is found. Where
/// several entries share a mark, the one that the process's unit names is meant, else the first.
///
/// Without an entry, the id that a sandbox gives, else the class (or the instance, the window's
/// application id, the script of an interpreter) is identity and name. What names the interpreter
/// alone ("python3", "Tk") is neither. All empty when nothing is told.
///
/// The identity is the entry's id, or, for the tools that many people use, the one by which the
/// tables of auto mode know them. Pure.
[[nodiscard]] Application resolveIdentity(const WindowHints& hints, const ProcessScope& scope,
                                          const DesktopEntryIndex& index);

} // namespace vantle
