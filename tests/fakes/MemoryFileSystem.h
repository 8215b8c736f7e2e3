// A disk in memory that forgets, at a crash, what was not synced.
//
// Files and directories with their modes, locks, and a capacity. It keeps two states: what the
// running system sees, and what would be there after the power failed. A file's content enters the
// second by File::sync, a name by syncDirectory of the directory that holds it. A directory whose
// own name was not synced is lost with all that is in it. One thread at a time. Paths are absolute;
// there are no symbolic links and no permissions.
#pragma once

#include "fakes/MemoryDisk.h"
#include "platform/FileSystem.h"

#include <QStringList>

namespace vantle::fakes {

class MemoryFileSystem final : public FileSystem {
public:
    /// The mode of a directory that is made without one, as under the umask 022.
    static constexpr int kUsualDirectoryMode = 0755;

    // FileSystem
    Result<std::unique_ptr<File>> open(const QString& path, OpenMode mode) override;
    [[nodiscard]] bool exists(const QString& path) override;
    Result<> makeDirectories(const QString& path, std::optional<int> mode) override;
    Result<> rename(const QString& from, const QString& to) override;
    Result<> remove(const QString& path) override;
    Result<> setMode(const QString& path, int mode) override;
    Result<int> mode(const QString& path) override;
    Result<> syncDirectory(const QString& path) override;
    [[nodiscard]] LockAttempt lock(const QString& path) override;

    /// Puts a file there as if it had always been there: it and the directories above it are on
    /// the disk. Replaces the content of one that stands there. The path must not be a directory.
    void setContent(const QString& path, const QByteArray& bytes, int mode = 0600);

    /// Puts a directory there, likewise on the disk.
    void setDirectory(const QString& path, int mode = kUsualDirectoryMode);

    /// The content that the running system sees; empty when no file stands at the path.
    [[nodiscard]] std::optional<QByteArray> content(const QString& path) const;

    /// The content that a crash without a torn tail would leave at the path.
    [[nodiscard]] std::optional<QByteArray> contentOnDisk(const QString& path) const;

    /// The paths of all files, sorted; directories do not count.
    [[nodiscard]] QStringList paths() const;

    /// The power fails and comes back. Contents and names are what was synced; of what was appended
    /// to a file after its last sync, the first `tornTailBytes` bytes made it as well. Locks are
    /// free, and files that are still held open answer EBADF.
    void crash(qsizetype tornTailBytes = 0);

    /// The bytes that all files together may hold. A write that does not fit puts down what does
    /// and then fails with ENOSPC.
    void setCapacity(qint64 bytes) { m_disk->capacity = bytes; }

    /// The bytes that all files hold now.
    [[nodiscard]] qint64 used() const { return m_disk->root->bytes(); }

private:
    const std::shared_ptr<MemoryDisk> m_disk = std::make_shared<MemoryDisk>();
};

} // namespace vantle::fakes
