// The port of data files.
//
// Small file operations; each Result names operation and file. Real in posix/; tests use one in
// memory that can crash and lose unsynced data, and one that fails at a chosen call. Any thread;
// all calls block. Those on data files run on their I/O queue.
#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>

namespace vantle {

/// The state of an open file by its file system's record. Times are nanoseconds since 1970.
///
/// Each write, truncation and change of mode or name sets `changedAt`, which no program can choose.
/// Its clock is coarse, so two changes within a tick share a value. A write through a memory map
/// sets it once until the kernel has written the page back.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    qint64 size = 0; ///< in bytes
    int mode = 0;
    std::int64_t modifiedAt = 0;
    std::int64_t changedAt = 0;
    std::int64_t takenAt = 0; ///< time of this stamp

    [[nodiscard]] bool isOfSameState(const FileStamp& other) const {
        return device == other.device && inode == other.inode && size == other.size &&
               mode == other.mode && modifiedAt == other.modifiedAt && changedAt == other.changedAt;
    }
};

/// An open file. The destructor closes it and ignores failures.
class File {
public:
    virtual ~File() = default;

    /// Reads up to `capacity` bytes at the read position into `buffer`; 0 at the end of the file.
    virtual Result<qint64> read(char* buffer, qint64 capacity) = 0;

    /// Writes all of `bytes`: at the end of a file opened to append, else at the write position. On
    /// failure a part may be written.
    virtual Result<> write(QByteArrayView bytes) = 0;

    /// The length in bytes.
    virtual Result<qint64> size() = 0;

    /// The state of the file; empty when the file system does not keep it reliably.
    [[nodiscard]] virtual std::optional<FileStamp> stamp() { return std::nullopt; }

    /// Cuts the file to `size` bytes.
    virtual Result<> truncate(qint64 size) = 0;

    /// Returns once the content is on disk.
    virtual Result<> sync() = 0;

    /// Closes the file and returns whether that succeeded. No call may follow.
    virtual Result<> close() = 0;
};

/// An exclusive lock, held until destruction or the end of the process.
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
        CreateNew, ///< fails when the path exists; mode 0600, for writing
    };

    virtual Result<std::unique_ptr<File>> open(const QString& path, OpenMode mode) = 0;

    /// Whether anything exists at the path; follows symbolic links.
    [[nodiscard]] virtual bool exists(const QString& path) = 0;

    /// Returns the names in the directory, in no order, without `.` and `..`.
    virtual Result<QStringList> names(const QString& directory) = 0;

    /// Creates the directory and missing parents. New directories get exactly `mode`; the umask is
    /// not applied. Without it they get the platform's default. An existing directory is no
    /// failure.
    virtual Result<> makeDirectories(const QString& path, std::optional<int> mode) = 0;

    /// Renames atomically; replaces `to`.
    virtual Result<> rename(const QString& from, const QString& to) = 0;

    /// Removes a file. Fails when it is missing, and for a directory.
    virtual Result<> remove(const QString& path) = 0;

    virtual Result<> setMode(const QString& path, int mode) = 0;
    virtual Result<int> mode(const QString& path) = 0;

    /// The mode of the user's new files (0666 less the umask).
    [[nodiscard]] virtual int usualMode() { return kUsualMode; }
    static constexpr int kUsualMode = 0644;

    /// Returns once creations, renames and removals in the directory are on disk.
    virtual Result<> syncDirectory(const QString& path) = 0;

    /// The result of `lock`.
    enum class LockOutcome {
        Held,         ///< held until the lock is destroyed
        TakenByOther, ///< another process, or another open file, holds it
        Unavailable,  ///< the file cannot be opened, or its file system has no locks
    };
    struct LockAttempt {
        LockOutcome outcome = LockOutcome::Unavailable;
        std::unique_ptr<FileLock> lock; ///< set if and only if Held
    };

    /// Opens or creates the file (mode 0600) and tries its exclusive lock without waiting.
    [[nodiscard]] virtual LockAttempt lock(const QString& path) = 0;

    /// Reads the whole file.
    Result<QByteArray> readAll(const QString& path);
};

} // namespace vantle
