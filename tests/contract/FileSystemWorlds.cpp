#include "contract/FileSystemWorlds.h"

#include "fakes/MemoryFileSystem.h"
#include "platform/posix/PosixFileSystem.h"

#include <QTemporaryDir>

namespace vantle {

namespace {

class PosixWorld final : public FileSystemWorld {
public:
    [[nodiscard]] FileSystem& files() override { return m_files; }
    [[nodiscard]] QString root() const override { return m_directory.path(); }

private:
    const QTemporaryDir m_directory;
    PosixFileSystem m_files;
};

class MemoryWorld final : public FileSystemWorld {
public:
    MemoryWorld() { m_files.setDirectory(root(), 0700); }
    [[nodiscard]] FileSystem& files() override { return m_files; }
    [[nodiscard]] QString root() const override { return QStringLiteral("/home/ada/data"); }

private:
    fakes::MemoryFileSystem m_files;
};

} // namespace

std::vector<FileSystemMaker> fileSystemMakers() {
    return {{"Posix", [] { return std::make_unique<PosixWorld>(); }},
            {"Memory", [] { return std::make_unique<MemoryWorld>(); }}};
}

void FileSystemContract::put(const QString& path, QByteArrayView content) const {
    auto file = files().open(path, FileSystem::OpenMode::CreateNew);
    ASSERT_TRUE(file) << file.error().description().toStdString();
    ASSERT_TRUE(file.value()->write(content));
    ASSERT_TRUE(file.value()->close());
}

QByteArray FileSystemContract::contentOf(const QString& path) const {
    const auto content = files().readAll(path);
    EXPECT_TRUE(content) << content.error().description().toStdString();
    return content ? content.value() : QByteArray();
}

} // namespace vantle
