// What every file system answers where something else stands than was expected, and its locks.
#include "contract/FileSystemWorlds.h"

#include <cerrno>

namespace vantle {
namespace {

class FileSystemFaults : public FileSystemContract {};

using OpenMode = FileSystem::OpenMode;

INSTANTIATE_TEST_SUITE_P(, FileSystemFaults, testing::ValuesIn(fileSystemMakers()),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(FileSystemFaults, NameTheOperationAndTheFile) {
    const auto missing = files().open(at("none"), OpenMode::Read);
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().code, ENOENT);
    EXPECT_EQ(missing.error().operation, QStringLiteral("open"));
    EXPECT_EQ(missing.error().path, at("none"));
    EXPECT_EQ(missing.error().text, QStringLiteral("No such file or directory"));
}

TEST_P(FileSystemFaults, AFileThatIsMissing) {
    EXPECT_EQ(files().open(at("none"), OpenMode::Append).error().code, ENOENT);
    EXPECT_EQ(files().readAll(at("none")).error().code, ENOENT);
    EXPECT_EQ(files().remove(at("none")).error().code, ENOENT);
    EXPECT_EQ(files().rename(at("none"), at("a")).error().code, ENOENT);
    EXPECT_EQ(files().setMode(at("none"), 0600).error().code, ENOENT);
    EXPECT_EQ(files().mode(at("none")).error().code, ENOENT);
    EXPECT_EQ(files().syncDirectory(at("none")).error().code, ENOENT);
}

TEST_P(FileSystemFaults, ADirectoryThatIsMissing) {
    put(at("a"), "");
    EXPECT_EQ(files().open(at("none/a"), OpenMode::CreateNew).error().code, ENOENT);
    EXPECT_EQ(files().rename(at("a"), at("none/a")).error().code, ENOENT);
    EXPECT_TRUE(files().exists(at("a")));
}

TEST_P(FileSystemFaults, ADirectoryInThePlaceOfAFile) {
    ASSERT_TRUE(files().makeDirectories(at("a"), 0700));
    put(at("b"), "b");
    EXPECT_EQ(files().open(at("a"), OpenMode::Read).error().code, EISDIR);
    EXPECT_EQ(files().open(at("a"), OpenMode::Append).error().code, EISDIR);
    EXPECT_EQ(files().open(at("a"), OpenMode::CreateNew).error().code, EEXIST);
    EXPECT_EQ(files().readAll(at("a")).error().code, EISDIR);
    EXPECT_EQ(files().remove(at("a")).error().code, EISDIR);
    EXPECT_EQ(files().rename(at("b"), at("a")).error().code, EISDIR);
    EXPECT_TRUE(files().exists(at("a")));
    EXPECT_EQ(contentOf(at("b")), "b");
}

TEST_P(FileSystemFaults, AFileInThePlaceOfADirectory) {
    put(at("a"), "a");
    EXPECT_EQ(files().open(at("a/b"), OpenMode::CreateNew).error().code, ENOTDIR);
    EXPECT_EQ(files().open(at("a/b"), OpenMode::Read).error().code, ENOTDIR);
    EXPECT_EQ(files().makeDirectories(at("a"), 0700).error().code, ENOTDIR);
    EXPECT_EQ(files().makeDirectories(at("a/b/c"), 0700).error().code, ENOTDIR);
    EXPECT_EQ(files().syncDirectory(at("a")).error().code, ENOTDIR);
    ASSERT_TRUE(files().makeDirectories(at("d"), 0700));
    EXPECT_EQ(files().rename(at("d"), at("a")).error().code, ENOTDIR);
    EXPECT_EQ(contentOf(at("a")), "a");
}

TEST_P(FileSystemFaults, ADirectoryMovedOverAFullOneOrIntoItself) {
    ASSERT_TRUE(files().makeDirectories(at("a"), 0700));
    ASSERT_TRUE(files().makeDirectories(at("b/c"), 0700));
    EXPECT_EQ(files().rename(at("a"), at("b")).error().code, ENOTEMPTY);
    EXPECT_EQ(files().rename(at("b"), at("b/c/d")).error().code, EINVAL);
    EXPECT_TRUE(files().rename(at("b"), at("b"))) << "onto itself is nothing";
    EXPECT_TRUE(files().exists(at("b/c")));
}

TEST_P(FileSystemFaults, ANameThatIsTooLong) {
    const QByteArray name(256, 'n');
    const QString path = at(name.constData());
    EXPECT_EQ(files().open(path, OpenMode::CreateNew).error().code, ENAMETOOLONG);
    EXPECT_EQ(files().makeDirectories(path, 0700).error().code, ENAMETOOLONG);
    EXPECT_FALSE(files().exists(path));
}

TEST_P(FileSystemFaults, ALockIsHeldByOneAtATime) {
    auto first = files().lock(at(".lock"));
    ASSERT_EQ(first.outcome, FileSystem::LockOutcome::Held);
    ASSERT_TRUE(first.lock);
    EXPECT_EQ(files().mode(at(".lock")).value(), 0600);

    const auto second = files().lock(at(".lock"));
    EXPECT_EQ(second.outcome, FileSystem::LockOutcome::TakenByOther);
    EXPECT_FALSE(second.lock);

    first.lock.reset();
    EXPECT_EQ(files().lock(at(".lock")).outcome, FileSystem::LockOutcome::Held);
}

TEST_P(FileSystemFaults, ALockLeavesTheFileInPlaceAndTakesAnOldOne) {
    put(at(".lock"), "left over");
    EXPECT_EQ(files().lock(at(".lock")).outcome, FileSystem::LockOutcome::Held);
    EXPECT_EQ(contentOf(at(".lock")), "left over");
}

TEST_P(FileSystemFaults, ALockThatCannotBeOpenedIsUnavailable) {
    put(at("file"), "");
    ASSERT_TRUE(files().makeDirectories(at("directory"), 0700));
    for (const char* name : {"file/.lock", "none/.lock", "directory"}) {
        const auto attempt = files().lock(at(name));
        EXPECT_EQ(attempt.outcome, FileSystem::LockOutcome::Unavailable) << name;
        EXPECT_FALSE(attempt.lock) << name;
    }
}

} // namespace
} // namespace vantle
