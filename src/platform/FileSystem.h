// The one door to data files.
//
// Small operations of the operating system, each with a Result that names operation and file. Real
// in posix/; in tests one in memory that can crash and forget what was not synced, and a faulty one
// that fails at a chosen call. All calls block; those on data files run on their I/O queue.
#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

namespace vantle {

/// An open file. The destructor closes it and drops a failure of that.
class File {
public:
    virtual ~File() = default;

    /// Reads up to `capacity` bytes at the read position into `buffer`; 0 at the end of the file.
    virtual Result<qint64> read(char* buffer, qint64 capacity) = 0;

    /// Writes all of `bytes`: at the end for a file opened to append, else at the write position.
    /// On failure part of them may have been written.
    virtual Result<> write(QByteArrayView bytes) = 0;

    /// The length in bytes.
    virtual Result<qint64> size() = 0;

    /// Cuts the file to `size` bytes.
    virtual Result<> truncate(qint64 size) = 0;

    /// Returns when the content is on the disk.
    virtual Result<> sync() = 0;

    /// Closes the file and tells whether that worked. Nothing else may be called afterwards.
    virtual Result<> close() = 0;
};

/// An exclusive lock, held until destroyed or until the process ends, however it ends.
class FileLock {
public:
    virtual ~FileLock() = default;
};

class FileSystem {
public:
    virtual ~FileSystem() = default;

    enum class OpenMode {
        Read,
        Append,    ///< existing file, writes go to its end
        CreateNew, ///< fails when something is there; born with mode 0600, for writing
    };

    virtual Result<std::unique_ptr<File>> open(const QString& path, OpenMode mode) = 0;

    /// Whether something stands at the path, of whatever kind; symbolic links are followed.
    [[nodiscard]] virtual bool exists(const QString& path) = 0;

    /// Makes the directory and the missing ones above it. `mode` is what the new ones get, less
    /// nothing; without it the platform's usual mode. A directory that is there is no failure.
    virtual Result<> makeDirectories(const QString& path, std::optional<int> mode) = 0;

    /// Renames over whatever stands at `to`, in one step.
    virtual Result<> rename(const QString& from, const QString& to) = 0;

    /// Removes a file. One that is not there is a failure. Never removes a directory.
    virtual Result<> remove(const QString& path) = 0;

    virtual Result<> setMode(const QString& path, int mode) = 0;
    virtual Result<int> mode(const QString& path) = 0;

    /// The mode that this person's programs give to new files.
    [[nodiscard]] virtual int usualMode() { return kUsualMode; }
    static constexpr int kUsualMode = 0644;

    /// Returns when creations, renames and removals in the directory are on the disk.
    virtual Result<> syncDirectory(const QString& path) = 0;

    /// The outcome of `lock`.
    enum class LockOutcome {
        Held,         ///< ours until the lock is destroyed
        TakenByOther, ///< another process or another open of it holds it
        Unavailable,  ///< the file can't be opened, or its file system has no locks
    };
    struct LockAttempt {
        LockOutcome outcome = LockOutcome::Unavailable;
        std::unique_ptr<FileLock> lock; ///< set exactly when Held
    };

    /// Opens or creates the file (mode 0600) and takes its exclusive lock without waiting.
    [[nodiscard]] virtual LockAttempt lock(const QString& path) = 0;

    /// The whole file.
    Result<QByteArray> readAll(const QString& path);
};

} // namespace vantle
