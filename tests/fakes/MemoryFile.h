// An open file of MemoryFileSystem.
#pragma once

#include "fakes/MemoryDisk.h"
#include "platform/FileSystem.h"

namespace vantle::fakes {

/// Keeps its node alive after the name is removed, like a descriptor. Every operation fails with
/// EBADF after a crash.
class MemoryFile final : public File {
public:
    MemoryFile(std::shared_ptr<MemoryDisk> disk, MemoryNode::Pointer node,
               FileSystem::OpenMode mode, QString path);

    Result<qint64> read(char* buffer, qint64 capacity) override;
    Result<> write(QByteArrayView bytes) override;
    Result<qint64> size() override;
    [[nodiscard]] std::optional<FileStamp> stamp() override;
    Result<> truncate(qint64 size) override;
    Result<> sync() override;
    Result<> close() override;

private:
    [[nodiscard]] bool isUsable() const { return !m_closed && m_start == m_disk->starts; }
    [[nodiscard]] bool isForReading() const { return m_mode == FileSystem::OpenMode::Read; }
    void tell(DiskChange::Kind kind) const;
    [[nodiscard]] Error failure(int code, const QString& operation) const;

    const std::shared_ptr<MemoryDisk> m_disk;
    const MemoryNode::Pointer m_node;
    const FileSystem::OpenMode m_mode;
    const QString m_path;
    const int m_start;
    qint64 m_position = 0;
    bool m_closed = false;
};

} // namespace vantle::fakes
