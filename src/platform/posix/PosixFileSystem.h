// The data files on plain POSIX calls.
#pragma once

#include "platform/FileSystem.h"

namespace vantle {

/// Stateless: any thread. Retries interrupted calls, leaks no descriptors to child processes, and
/// does not block on a pipe or device in place of a data file.
class PosixFileSystem final : public FileSystem {
public:
    Result<std::unique_ptr<File>> open(const QString& path, OpenMode mode) override;
    [[nodiscard]] bool exists(const QString& path) override;
    Result<QStringList> names(const QString& directory) override;
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
