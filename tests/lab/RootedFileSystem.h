// A directory of a real file system as a whole disk.
#pragma once

#include "platform/posix/PosixFileSystem.h"

#include <utility>

namespace vantle::tests {

/// Takes `/home/ada` for `<root>/home/ada`, so that a life finds its files where they are on a disk
/// in memory. Everything else is the program's own port.
class RootedFileSystem final : public FileSystem {
public:
    /// `root` is an absolute path without a slash at its end.
    explicit RootedFileSystem(QString root) : m_root(std::move(root)) {}

    Result<std::unique_ptr<File>> open(const QString& path, OpenMode mode) override {
        return m_files.open(m_root + path, mode);
    }
    [[nodiscard]] bool exists(const QString& path) override {
        return m_files.exists(m_root + path);
    }
    Result<QStringList> names(const QString& directory) override {
        return m_files.names(m_root + directory);
    }
    Result<> makeDirectories(const QString& path, std::optional<int> mode) override {
        return m_files.makeDirectories(m_root + path, mode);
    }
    Result<> rename(const QString& from, const QString& to) override {
        return m_files.rename(m_root + from, m_root + to);
    }
    Result<> remove(const QString& path) override { return m_files.remove(m_root + path); }
    Result<> setMode(const QString& path, int mode) override {
        return m_files.setMode(m_root + path, mode);
    }
    Result<int> mode(const QString& path) override { return m_files.mode(m_root + path); }
    [[nodiscard]] int usualMode() override { return m_files.usualMode(); }
    Result<> syncDirectory(const QString& path) override {
        return m_files.syncDirectory(m_root + path);
    }
    [[nodiscard]] LockAttempt lock(const QString& path) override {
        return m_files.lock(m_root + path);
    }

private:
    const QString m_root;
    PosixFileSystem m_files;
};

} // namespace vantle::tests
