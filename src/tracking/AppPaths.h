// The data directory, its files, and their atomic replacement.
#pragma once

#include "base/Result.h"

#include <QString>
#include <QStringList>

namespace vantle {

class FileSystem;

/// Stateless: each access finds the directory, takes over that of earlier versions if only that
/// exists, and creates what is missing. Does not fail; a missing directory shows at the first read
/// or write.
///
/// Any thread; only the I/O queue touches data files.
class AppPaths {
public:
    /// `baseDirectory` is the user's data home, such as ~/.local/share.
    AppPaths(FileSystem& fileSystem, QString baseDirectory);

    [[nodiscard]] QString supportDir() const;
    [[nodiscard]] QString sessionsFile() const;
    [[nodiscard]] QString openSessionMarker() const;
    [[nodiscard]] QString skillsFile() const;
    [[nodiscard]] QString autoRulesFile() const;
    [[nodiscard]] QString corruptSessionsFile() const;
    [[nodiscard]] QString instanceLock() const;

    /// The private files, which an erase removes in this order.
    [[nodiscard]] QStringList allDataFiles() const;

    /// Replaces the file with `data` atomically: writes a temporary file beside it, syncs it,
    /// renames it, syncs the directory. The file has mode 0600. On failure the old file stays and
    /// no temporary file is left.
    Result<> writeProtected(const QByteArray& data, const QString& path) const;

    /// Removes the file; succeeds when there is none.
    Result<> removeIfPresent(const QString& path) const;

    /// Removes the file and syncs its directory: it does not return after a power loss.
    Result<> removeForGood(const QString& path) const;

    /// Sets mode 0600; failure is ignored.
    void restrictToOwner(const QString& path) const;

    /// Sets the data directory to 0700 and the data files to 0600, and removes a retired file and
    /// temporary files of a process that died. Failures are ignored. Requires the instance lock: it
    /// would also remove the temporary file of another running copy.
    void enforcePrivatePermissions() const;

    [[nodiscard]] FileSystem& fileSystem() const { return m_fileSystem; }

private:
    void removeHalfWrittenFiles(const QString& directory) const;

    FileSystem& m_fileSystem;
    QString m_base;
};

} // namespace vantle
