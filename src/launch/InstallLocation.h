// Where a program on this desktop is in its proper place.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace vantle {

class FileSystem;

namespace installlocation {

/// Whether a program at `program` counts as installed: under the system's folders for programs, in
/// a sandbox or a package store, in ~/Applications or ~/bin, or under ~/.local but for its trash.
/// Both paths are absolute and free of links. Pure.
[[nodiscard]] bool isProper(const QString& program, const QString& home);

/// Whether a program in `folder` is there on purpose, wherever that is: in the tree that it was
/// built in, or below a prefix with all else that is installed with it. Looks for two files.
[[nodiscard]] bool isOnPurpose(FileSystem& files, const QString& folder);

/// Where an installed copy belongs: ~/.local/bin/vantle.
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
    /// What of the sources is no longer of use once the program has moved: files and whole folders.
    QStringList sources;
};

/// What lies around a program in `folder` and belongs to it: the tool for shortcuts, the module for
/// ceremony pages, and all of its resources, with the place of each in an installation in `home`.
/// Walks through the resources.
[[nodiscard]] Companions companions(const QString& folder, const QString& home);

} // namespace installlocation
} // namespace vantle
