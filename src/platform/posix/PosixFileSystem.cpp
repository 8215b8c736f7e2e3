#include "platform/posix/PosixFileSystem.h"

#include "platform/posix/Descriptor.h"
#include "platform/posix/PosixFile.h"

#include <QFile>

#include <algorithm>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace vantle {

using posix::Descriptor;
using posix::retried;

namespace {

constexpr mode_t kPrivateFile = 0600;
constexpr mode_t kAllModeBits = 07777;
constexpr int kUnmaskedFileMode = 0666;
constexpr qsizetype kStatusStart = 512; // bytes

Error failure(int code, const QString& operation, const QString& path) {
    return Error::fromErrno(code, operation, path);
}

Descriptor openedAt(const QString& path, int flags) {
    const QByteArray name = QFile::encodeName(path);
    return Descriptor(
        retried([&] { return ::open(name.constData(), flags | O_CLOEXEC, kPrivateFile); }));
}

/// Returns the status of the path, following links; empty with errno set on failure.
std::optional<struct stat> statusOf(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) return std::nullopt;
    return status;
}

/// Restores a mode that the umask reduced. Returns -1 with errno on failure.
int makePrivate(const Descriptor& file) {
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) return -1;
    if ((status.st_mode & kAllModeBits) == kPrivateFile) return 0;
    return ::fchmod(file.get(), kPrivateFile);
}

Result<std::unique_ptr<File>> createdAt(const QString& path) {
    const QString operation = QStringLiteral("create");
    Descriptor file = openedAt(path, O_WRONLY | O_CREAT | O_EXCL);
    if (!file) return failure(errno, operation, path);
    if (makePrivate(file) != 0) {
        const int code = errno;
        ::unlink(QFile::encodeName(path).constData());
        return failure(code, operation, path);
    }
    return std::unique_ptr<File>(std::make_unique<PosixFile>(std::move(file), path));
}

QString directoryAbove(const QString& path) {
    return path.left(std::max<qsizetype>(path.lastIndexOf(QLatin1Char('/')), 0));
}

/// Creates one directory. Returns 0 or errno; an existing one is no failure.
int makeDirectory(const QString& path, std::optional<int> mode) {
    const QByteArray name = QFile::encodeName(path);
    if (::mkdir(name.constData(), static_cast<mode_t>(mode.value_or(0777))) == 0) {
        // mkdir() applied the umask; chmod() sets the exact mode.
        const bool exact = !mode || ::chmod(name.constData(), static_cast<mode_t>(*mode)) == 0;
        return exact ? 0 : errno;
    }
    if (errno != EEXIST) return errno;
    const auto status = statusOf(path);
    if (!status) return errno;
    return S_ISDIR(status->st_mode) ? 0 : ENOTDIR;
}

class PosixLock final : public FileLock {
public:
    explicit PosixLock(Descriptor file) : m_file(std::move(file)) {}

private:
    const Descriptor m_file; ///< the kernel frees the lock when it is closed
};

} // namespace

Result<std::unique_ptr<File>> PosixFileSystem::open(const QString& path, OpenMode mode) {
    if (mode == OpenMode::CreateNew) return createdAt(path);
    const QString operation = QStringLiteral("open");
    const int access = mode == OpenMode::Read ? O_RDONLY : O_WRONLY | O_APPEND;
    Descriptor file = openedAt(path, access | O_NONBLOCK | O_NOCTTY);
    if (!file) return failure(errno, operation, path);
    // open() succeeds on a directory for reading; only read() would fail.
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) return failure(errno, operation, path);
    if (S_ISDIR(status.st_mode)) return failure(EISDIR, operation, path);
    return std::unique_ptr<File>(std::make_unique<PosixFile>(std::move(file), path));
}

bool PosixFileSystem::exists(const QString& path) { return statusOf(path).has_value(); }

Result<QStringList> PosixFileSystem::names(const QString& directory) {
    const QString operation = QStringLiteral("list");
    DIR* const opened = ::opendir(QFile::encodeName(directory).constData());
    if (!opened) return failure(errno, operation, directory);
    QStringList names;
    errno = 0;
    while (const dirent* const entry = ::readdir(opened)) {
        const QByteArrayView name(entry->d_name);
        if (name != QByteArrayView(".") && name != QByteArrayView(".."))
            names.append(QFile::decodeName(name.toByteArray()));
    }
    const int code = errno;
    ::closedir(opened);
    if (code != 0) return failure(code, operation, directory);
    return names;
}

Result<> PosixFileSystem::makeDirectories(const QString& path, std::optional<int> mode) {
    int code = makeDirectory(path, mode);
    const QString above = directoryAbove(path);
    if (code == ENOENT && !above.isEmpty()) {
        if (auto made = makeDirectories(above, mode); !made) return made;
        code = makeDirectory(path, mode);
    }
    if (code != 0) return failure(code, QStringLiteral("make directory"), path);
    return {};
}

Result<> PosixFileSystem::rename(const QString& from, const QString& to) {
    if (::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return failure(errno, QStringLiteral("rename"), from);
    return {};
}

Result<> PosixFileSystem::remove(const QString& path) {
    if (::unlink(QFile::encodeName(path).constData()) != 0)
        return failure(errno, QStringLiteral("remove"), path);
    return {};
}

Result<> PosixFileSystem::setMode(const QString& path, int mode) {
    if (::chmod(QFile::encodeName(path).constData(), static_cast<mode_t>(mode)) != 0)
        return failure(errno, QStringLiteral("set mode of"), path);
    return {};
}

int PosixFileSystem::usualMode() {
    // Reading the umask through the C library changes it for all threads. The kernel reports it in
    // this file's first lines.
    const Descriptor status = openedAt(QStringLiteral("/proc/self/status"), O_RDONLY);
    QByteArray text(kStatusStart, '\0');
    const auto length =
        status ? retried([&] { return ::read(status.get(), text.data(), text.size()); }) : 0;
    text.truncate(std::max<qsizetype>(length, 0));
    const qsizetype at = text.indexOf("Umask:");
    if (at < 0) return kUsualMode;
    const qsizetype begin = at + qsizetype(sizeof "Umask:") - 1;
    const int umask =
        text.mid(begin, text.indexOf('\n', begin) - begin).trimmed().toInt(nullptr, 8);
    return kUnmaskedFileMode & ~umask;
}

Result<int> PosixFileSystem::mode(const QString& path) {
    const auto status = statusOf(path);
    if (!status) return failure(errno, QStringLiteral("read mode of"), path);
    return static_cast<int>(status->st_mode & kAllModeBits);
}

Result<> PosixFileSystem::syncDirectory(const QString& path) {
    const QString operation = QStringLiteral("sync directory");
    const Descriptor directory = openedAt(path, O_RDONLY | O_DIRECTORY);
    if (!directory) return failure(errno, operation, path);
    // Some network file systems return EINVAL: they cannot sync a directory.
    if (retried([&] { return ::fsync(directory.get()); }) != 0 && errno != EINVAL)
        return failure(errno, operation, path);
    return {};
}

FileSystem::LockAttempt PosixFileSystem::lock(const QString& path) {
    Descriptor file = openedAt(path, O_RDWR | O_CREAT | O_NONBLOCK | O_NOCTTY);
    if (!file) return {};
    makePrivate(file); // the lock counts, not the mode
    if (retried([&] { return ::flock(file.get(), LOCK_EX | LOCK_NB); }) != 0) {
        // Network and FUSE file systems without locks return ENOLCK, ENOSYS or EOPNOTSUPP.
        const bool isTaken = errno == EWOULDBLOCK;
        return {isTaken ? LockOutcome::TakenByOther : LockOutcome::Unavailable, nullptr};
    }
    return {LockOutcome::Held, std::make_unique<PosixLock>(std::move(file))};
}

} // namespace vantle
