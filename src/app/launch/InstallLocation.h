// Where a program on this desktop is in its proper place.
#pragma once

#include <QString>

namespace vantle::installlocation {

/// Whether a program at `program` counts as installed: under the system's folders for programs, in
/// a sandbox or a package store, or under ~/.local but for its trash. Both paths are absolute and
/// free of links. Pure.
[[nodiscard]] bool isProper(const QString& program, const QString& home);

/// Where an installed copy belongs: ~/.local/bin/vantle.
[[nodiscard]] QString target(const QString& home);

} // namespace vantle::installlocation
