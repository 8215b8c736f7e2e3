// The file systems under the contract, each with an empty directory.
#pragma once

#include "platform/FileSystem.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <functional>

namespace vantle {

/// A file system and an empty directory of mode 0700 in it.
class FileSystemWorld {
public:
    virtual ~FileSystemWorld() = default;
    [[nodiscard]] virtual FileSystem& files() = 0;
    [[nodiscard]] virtual QString root() const = 0;
};

struct FileSystemMaker {
    const char* name;
    std::function<std::unique_ptr<FileSystemWorld>()> make;
};

/// The real file system in a temporary directory, and the one in memory.
[[nodiscard]] std::vector<FileSystemMaker> fileSystemMakers();

class FileSystemContract : public testing::TestWithParam<FileSystemMaker> {
protected:
    [[nodiscard]] FileSystem& files() const { return m_world->files(); }
    [[nodiscard]] QString at(const char* name) const {
        return m_world->root() + QLatin1Char('/') + QLatin1String(name);
    }

    /// Creates a file with that content; fails the test otherwise.
    void put(const QString& path, QByteArrayView content) const;

    /// Returns the content at the path; fails the test when unreadable.
    [[nodiscard]] QByteArray contentOf(const QString& path) const;

private:
    const std::unique_ptr<FileSystemWorld> m_world = GetParam().make();
};

} // namespace vantle
