// An open file of the operating system.
#pragma once

#include "platform/FileSystem.h"
#include "platform/posix/Descriptor.h"

namespace vantle {

/// Owns its descriptor. Errors carry errno and the path of the open call. All calls block. Any
/// thread, one at a time.
class PosixFile final : public File {
public:
    PosixFile(posix::Descriptor descriptor, QString path);

    Result<qint64> read(char* buffer, qint64 capacity) override;
    Result<> write(QByteArrayView bytes) override;
    Result<qint64> size() override;
    /// Empty on network and FUSE file systems, whose times may be cached or another machine's.
    [[nodiscard]] std::optional<FileStamp> stamp() override;
    Result<> truncate(qint64 size) override;
    Result<> sync() override;
    Result<> close() override;

private:
    [[nodiscard]] Error failure(const QString& operation) const;

    posix::Descriptor m_descriptor;
    const QString m_path;
};

} // namespace vantle
