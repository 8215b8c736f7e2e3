// A disk in memory that loses unsynced data in a crash.
//
// Files and directories with modes, locks, and a capacity, in two states: what the running system
// sees, and what a power failure would leave. A file's content enters the second by File::sync, a
// name by syncDirectory of its directory. A directory with an unsynced name is lost with its
// content. One thread at a time. Paths are absolute; there are no symbolic links and no permission
// checks.
#pragma once

#include "fakes/MemoryDisk.h"
#include "platform/FileSystem.h"

#include <QStringList>

#include <chrono>

namespace vantle::fakes {

class MemoryFileSystem final : public FileSystem {
public:
    /// The default mode of new directories, as under umask 022.
    static constexpr int kUsualDirectoryMode = 0755;

    // FileSystem
    Result<std::unique_ptr<File>> open(const QString& path, OpenMode mode) override;
    [[nodiscard]] bool exists(const QString& path) override;
    Result<QStringList> names(const QString& directory) override;
    Result<> makeDirectories(const QString& path, std::optional<int> mode) override;
    Result<> rename(const QString& from, const QString& to) override;
    Result<> remove(const QString& path) override;
    Result<> setMode(const QString& path, int mode) override;
    Result<int> mode(const QString& path) override;
    Result<> syncDirectory(const QString& path) override;
    [[nodiscard]] LockAttempt lock(const QString& path) override;

    /// Adds a file that is already on disk, with its parent directories. Replaces the content of an
    /// existing one. The path must not be a directory.
    void setContent(const QString& path, const QByteArray& bytes, int mode = 0600);

    /// Overwrites bytes of an existing file through a memory map, of whose later writes the file
    /// system takes no note.
    void setBytesUnnoticed(const QString& path, qsizetype at, QByteArrayView bytes);

    /// Sets the time of the last change of the content, as programs may.
    void setModified(const QString& path, std::int64_t nanoseconds);
    [[nodiscard]] std::int64_t modified(const QString& path) const;

    /// Advances the clock of the file system, which stands still otherwise: the changes until then
    /// fall into one tick.
    void passTime(std::chrono::nanoseconds time) { m_disk->now += time.count(); }

    /// Adds a directory that is already on disk.
    void setDirectory(const QString& path, int mode = kUsualDirectoryMode);

    /// The content that the running system sees; empty when there is no file.
    [[nodiscard]] std::optional<QByteArray> content(const QString& path) const;

    /// The content that a crash without a torn tail would leave.
    [[nodiscard]] std::optional<QByteArray> contentOnDisk(const QString& path) const;

    /// The paths of all files, sorted; without directories.
    [[nodiscard]] QStringList paths() const;

    /// The power fails and returns. Content and names are what was synced; of the bytes appended
    /// after a file's last sync, the first `tornTailBytes` survive too. Locks are free, and open
    /// files return EBADF.
    void crash(qsizetype tornTailBytes = 0);

    /// Sets the capacity in bytes. A write that does not fit writes what fits and fails with
    /// ENOSPC.
    void setCapacity(qint64 bytes) { m_disk->capacity = bytes; }

    /// Calls `observer` after each change of the disk from now on.
    void observe(std::function<void(const DiskChange&)> observer) {
        m_disk->onChange = std::move(observer);
    }
    /// The directory `/`, so that an observer can read the initial state.
    [[nodiscard]] MemoryNode::Pointer root() const { return m_disk->root; }

    /// The bytes of all files now.
    [[nodiscard]] qint64 used() const { return m_disk->root->bytes(); }

private:
    const std::shared_ptr<MemoryDisk> m_disk = std::make_shared<MemoryDisk>();
};

} // namespace vantle::fakes
