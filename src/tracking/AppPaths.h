// The support directory, the names of the data files, and the one way of replacing a file.
#pragma once

#include "base/Result.h"

#include <QString>
#include <QStringList>

namespace vantle {

class FileSystem;

/// Where the data lies. Holds no state but where to look: each access finds the directory afresh,
/// takes over the one of earlier versions if only that exists, and makes what is missing. Never
/// fails by itself; what could not be made shows at the first read or write.
///
/// Any thread; data files are only touched on their I/O queue.
class AppPaths {
public:
    /// `baseDirectory` is the person's data home, as in ~/.local/share.
    AppPaths(FileSystem& fileSystem, QString baseDirectory);

    [[nodiscard]] QString supportDir() const;
    [[nodiscard]] QString sessionsFile() const;
    [[nodiscard]] QString openSessionMarker() const;
    [[nodiscard]] QString skillsFile() const;
    [[nodiscard]] QString autoRulesFile() const;
    [[nodiscard]] QString corruptSessionsFile() const;
    [[nodiscard]] QString instanceLock() const;

    /// Exactly the files that are kept private and that an erase removes, in this order.
    [[nodiscard]] QStringList allDataFiles() const;

    /// Replaces the file at `path` with `data`, or leaves it as it is: a temporary file beside it,
    /// synchronised, renamed over it. The result has mode 0600. On failure no temporary file stays.
    Result<> writeProtected(const QByteArray& data, const QString& path) const;

    /// Removes the file; one that is not there is no failure.
    Result<> removeIfPresent(const QString& path) const;

    /// Sets mode 0600, whatever comes of it.
    void restrictToOwner(const QString& path) const;

    /// Makes the support directory 0700 and the data files 0600, and removes a retired file.
    /// Failures are of no consequence.
    void enforcePrivatePermissions() const;

    [[nodiscard]] FileSystem& fileSystem() const { return m_fileSystem; }

private:
    FileSystem& m_fileSystem;
    QString m_base;
};

} // namespace vantle
