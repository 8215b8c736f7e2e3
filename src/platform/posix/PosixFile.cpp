#include "platform/posix/PosixFile.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>

namespace vantle {

using posix::retried;

namespace {

constexpr int kModeBits = 07777;

constexpr std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

/// Whether the file system keeps its times on this machine, by its clock, and sets them for writes
/// through memory maps too. Unlike the others, tmpfs does not do the latter.
bool hasReliableTimes(int descriptor) {
    constexpr unsigned kXfs = 0x58465342;
    constexpr unsigned kZfs = 0x2FC12FC1;
    constexpr unsigned kBcachefs = 0xCA451A4E;
    constexpr std::array<unsigned, 7> reliable = {
        EXT4_SUPER_MAGIC, BTRFS_SUPER_MAGIC, F2FS_SUPER_MAGIC, OVERLAYFS_SUPER_MAGIC, kXfs, kZfs,
        kBcachefs};
    struct statfs status {};
    return ::fstatfs(descriptor, &status) == 0 &&
           std::ranges::find(reliable, static_cast<unsigned>(status.f_type)) != reliable.end();
}

} // namespace

PosixFile::PosixFile(posix::Descriptor descriptor, QString path)
    : m_descriptor(std::move(descriptor))
    , m_path(std::move(path)) {}

Error PosixFile::failure(const QString& operation) const {
    return Error::fromErrno(errno, operation, m_path);
}

Result<qint64> PosixFile::read(char* buffer, qint64 capacity) {
    const ssize_t count =
        retried([&] { return ::read(m_descriptor.get(), buffer, static_cast<size_t>(capacity)); });
    if (count < 0) return failure(QStringLiteral("read"));
    return count;
}

Result<> PosixFile::write(QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const ssize_t count = retried([&] {
            return ::write(m_descriptor.get(), bytes.data(), static_cast<size_t>(bytes.size()));
        });
        if (count < 0) return failure(QStringLiteral("write"));
        bytes = bytes.sliced(count);
    }
    return {};
}

Result<qint64> PosixFile::size() {
    struct stat status {};
    if (::fstat(m_descriptor.get(), &status) != 0) return failure(QStringLiteral("read size of"));
    return status.st_size;
}

std::optional<FileStamp> PosixFile::stamp() {
    struct stat status {};
    timespec now{};
    if (!hasReliableTimes(m_descriptor.get()) || ::clock_gettime(CLOCK_REALTIME, &now) != 0 ||
        ::fstat(m_descriptor.get(), &status) != 0)
        return std::nullopt;
    return FileStamp{status.st_dev,
                     status.st_ino,
                     status.st_size,
                     static_cast<int>(status.st_mode) & kModeBits,
                     nanoseconds(status.st_mtim),
                     nanoseconds(status.st_ctim),
                     nanoseconds(now)};
}

Result<> PosixFile::truncate(qint64 size) {
    if (retried([&] { return ::ftruncate(m_descriptor.get(), size); }) != 0)
        return failure(QStringLiteral("truncate"));
    return {};
}

Result<> PosixFile::sync() {
    if (retried([&] { return ::fsync(m_descriptor.get()); }) != 0)
        return failure(QStringLiteral("sync"));
    return {};
}

Result<> PosixFile::close() {
    // Not retried: Linux frees the descriptor even when a signal interrupts the call, and another
    // thread may already have got its number.
    if (::close(m_descriptor.release()) != 0 && errno != EINTR)
        return failure(QStringLiteral("close"));
    return {};
}

} // namespace vantle
