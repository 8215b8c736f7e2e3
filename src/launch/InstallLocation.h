// The places in which a program counts as installed.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace vantle {

class FileSystem;

namespace installlocation {

/// Whether a program at `program` counts as installed: in a system folder, a sandbox or a package
/// store, in ~/Applications or ~/bin, or under ~/.local except its trash. Requires absolute paths
/// without links. Pure function, any thread.
[[nodiscard]] bool isProper(const QString& program, const QString& home);

/// Whether a program in `folder` is there on purpose: in the tree that it was built in, or below a
/// prefix with everything installed with it. Checks for two files.
[[nodiscard]] bool isOnPurpose(FileSystem& files, const QString& folder);

/// The place of an installed copy: ~/.local/bin/vantle.
[[nodiscard]] QString target(const QString& home);

/// A file that an installed copy uses beside the program.
struct Companion {
    QString source;
    QString target;
    bool isProgram = false;
    friend bool operator==(const Companion&, const Companion&) = default;
};
struct Companions {
    std::vector<Companion> files;
    /// What the moved program no longer needs: files and whole folders.
    QStringList sources;
};

/// Returns the files that belong to a program in `folder` (the shortcuts tool, the module for
/// ceremony pages, all resources), each with its place in an installation in `home`. Walks the
/// resources.
[[nodiscard]] Companions companions(const QString& folder, const QString& home);

} // namespace installlocation
} // namespace vantle
