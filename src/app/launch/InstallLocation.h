// Where a program on this desktop is in its proper place.
#pragma once

#include <QString>

namespace vantle {

class FileSystem;

namespace installlocation {

/// Whether a program at `program` counts as installed: under the system's folders for programs, in
/// a sandbox or a package store, or under ~/.local but for its trash. Both paths are absolute and
/// free of links. Pure.
[[nodiscard]] bool isProper(const QString& program, const QString& home);

/// Whether a program in `folder` is there on purpose, wherever that is: in the tree that it was
/// built in, or below a prefix with all else that is installed with it. Looks for two files.
[[nodiscard]] bool isOnPurpose(FileSystem& files, const QString& folder);

/// Where an installed copy belongs: ~/.local/bin/vantle.
[[nodiscard]] QString target(const QString& home);

} // namespace installlocation
} // namespace vantle
