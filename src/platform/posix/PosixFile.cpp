#include "platform/posix/PosixFile.h"

#include <sys/stat.h>

namespace vantle {

using posix::retried;

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
