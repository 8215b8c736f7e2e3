// The data files of this machine.
#pragma once

#include "platform/FileSystem.h"

namespace vantle {

/// The file system through plain POSIX calls. Holds no state: any thread. Interrupted calls are
/// taken up again, descriptors do not leak into child processes, and a pipe or device in the place
/// of a data file can't make an open wait.
class PosixFileSystem final : public FileSystem {
public:
    Result<std::unique_ptr<File>> open(const QString& path, OpenMode mode) override;
    [[nodiscard]] bool exists(const QString& path) override;
    Result<> makeDirectories(const QString& path, std::optional<int> mode) override;
    Result<> rename(const QString& from, const QString& to) override;
    Result<> remove(const QString& path) override;
    Result<> setMode(const QString& path, int mode) override;
    Result<int> mode(const QString& path) override;
    [[nodiscard]] int usualMode() override;
    Result<> syncDirectory(const QString& path) override;
    [[nodiscard]] LockAttempt lock(const QString& path) override;
};

} // namespace vantle
