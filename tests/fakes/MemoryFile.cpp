#include "fakes/MemoryFile.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace vantle::fakes {

MemoryFile::MemoryFile(std::shared_ptr<MemoryDisk> disk, MemoryNode::Pointer node,
                       FileSystem::OpenMode mode, QString path)
    : m_disk(std::move(disk))
    , m_node(std::move(node))
    , m_mode(mode)
    , m_path(std::move(path))
    , m_start(m_disk->starts) {}

Error MemoryFile::failure(int code, const QString& operation) const {
    return Error::fromErrno(code, operation, m_path);
}

void MemoryFile::tell(DiskChange::Kind kind) const {
    DiskChange change;
    change.kind = kind;
    change.node = m_node;
    change.content = m_node->content;
    m_disk->onChange(change);
}

Result<qint64> MemoryFile::read(char* buffer, qint64 capacity) {
    if (!isUsable() || !isForReading()) return failure(EBADF, QStringLiteral("read"));
    const qint64 left = std::max<qint64>(0, m_node->content.size() - m_position);
    const qint64 count = std::min(left, capacity);
    std::copy_n(m_node->content.constData() + m_position, count, buffer);
    m_position += count;
    return count;
}

Result<> MemoryFile::write(QByteArrayView bytes) {
    if (!isUsable() || isForReading()) return failure(EBADF, QStringLiteral("write"));
    QByteArray& content = m_node->content;
    if (m_mode == FileSystem::OpenMode::Append) m_position = content.size();
    // After a truncation the position may lie behind the end; the gap reads as zeros.
    content.append(std::max<qint64>(0, m_position - content.size()), '\0');
    const qint64 overwritten = std::min<qint64>(content.size() - m_position, bytes.size());
    const qint64 fitting = std::min<qint64>(bytes.size(), overwritten + m_disk->room());
    content.replace(m_position, overwritten, bytes.first(fitting));
    m_position += fitting;
    m_disk->touch(*m_node);
    tell(DiskChange::Kind::Write);
    if (fitting < bytes.size()) return failure(ENOSPC, QStringLiteral("write"));
    return {};
}

Result<qint64> MemoryFile::size() {
    if (!isUsable()) return failure(EBADF, QStringLiteral("read size of"));
    return m_node->content.size();
}

std::optional<FileStamp> MemoryFile::stamp() {
    if (!isUsable()) return std::nullopt;
    return FileStamp{1,
                     reinterpret_cast<std::uintptr_t>(m_node.get()),
                     m_node->content.size(),
                     m_node->mode,
                     m_node->modifiedAt,
                     m_node->changedAt,
                     m_disk->now};
}

Result<> MemoryFile::truncate(qint64 size) {
    if (!isUsable()) return failure(EBADF, QStringLiteral("truncate"));
    if (isForReading() || size < 0) return failure(EINVAL, QStringLiteral("truncate"));
    m_node->content.resize(std::min<qint64>(size, m_node->content.size()));
    m_node->content.append(size - m_node->content.size(), '\0');
    m_disk->touch(*m_node);
    tell(DiskChange::Kind::Write);
    return {};
}

Result<> MemoryFile::sync() {
    if (!isUsable()) return failure(EBADF, QStringLiteral("sync"));
    m_node->diskContent = m_node->content;
    tell(DiskChange::Kind::SyncFile);
    return {};
}

Result<> MemoryFile::close() {
    if (!isUsable()) return failure(EBADF, QStringLiteral("close"));
    m_closed = true;
    return {};
}

} // namespace vantle::fakes
