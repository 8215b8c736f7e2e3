#include "fakes/FaultyFileSystem.h"

#include "fakes/MemoryFileSystem.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace vantle::fakes {
namespace {

using OpenMode = FileSystem::OpenMode;
using Operation = FaultyFileSystem::Operation;

const QString kDirectory = QStringLiteral("/data");
const QString kFile = QStringLiteral("/data/log");
const QString kOther = QStringLiteral("/data/.log.42.tmp");

class FaultyFileSystemTest : public testing::Test {
protected:
    FaultyFileSystemTest() { m_disk.setContent(kFile, "content"); }

    MemoryFileSystem m_disk;
    FaultyFileSystem m_files{m_disk};
};

TEST_F(FaultyFileSystemTest, WithoutAFaultEverythingWorks) {
    EXPECT_EQ(m_files.readAll(kFile).value(), "content");
    EXPECT_TRUE(m_files.exists(kFile));
    EXPECT_TRUE(m_files.setMode(kFile, 0640));
    EXPECT_EQ(m_files.mode(kFile).value(), 0640);
    EXPECT_TRUE(m_files.makeDirectories(QStringLiteral("/data/x"), 0700));
    EXPECT_TRUE(m_files.rename(kFile, kOther));
    EXPECT_TRUE(m_files.remove(kOther));
    EXPECT_TRUE(m_files.syncDirectory(kDirectory));
    EXPECT_EQ(m_files.lock(kFile).outcome, FileSystem::LockOutcome::Held);
}

TEST_F(FaultyFileSystemTest, RecordsEachCallWithItsNames) {
    EXPECT_TRUE(m_files.open(kFile, OpenMode::Append).value()->write("x"));
    EXPECT_TRUE(m_files.rename(kFile, kOther));
    EXPECT_THAT(m_files.calls(),
                testing::ElementsAre(FaultyFileSystem::Call{Operation::Open, kFile, {}},
                                     FaultyFileSystem::Call{Operation::Write, kFile, {}},
                                     FaultyFileSystem::Call{Operation::Rename, kFile, kOther}));
    m_files.forgetCalls();
    EXPECT_TRUE(m_files.calls().empty());
}

TEST_F(FaultyFileSystemTest, FailsTheChosenCallAndNoOther) {
    m_files.failNthCall(2, EACCES);
    EXPECT_TRUE(m_files.mode(kFile));
    EXPECT_EQ(m_files.remove(kFile).error().code, EACCES);
    EXPECT_TRUE(m_files.exists(kFile));
    EXPECT_TRUE(m_files.remove(kFile));
}

TEST_F(FaultyFileSystemTest, FailsAnOperationOnAFileUntilHealed) {
    m_files.fail(Operation::Remove, QStringLiteral("log"), EIO);
    EXPECT_EQ(m_files.remove(kFile).error().code, EIO);
    EXPECT_EQ(m_files.remove(kFile).error().code, EIO);
    EXPECT_TRUE(m_files.mode(kFile)) << "other operations work";
    EXPECT_EQ(m_files.remove(kOther).error().code, ENOENT) << "other files are as they are";
    m_files.heal(Operation::Remove, QStringLiteral("log"));
    EXPECT_TRUE(m_files.remove(kFile));
}

TEST_F(FaultyFileSystemTest, KnowsFilesByWildcardAndWholePath) {
    m_files.fail(Operation::Create, QStringLiteral(".log.*.tmp"), ENOSPC);
    EXPECT_EQ(m_files.open(kOther, OpenMode::CreateNew).error().code, ENOSPC);
    EXPECT_FALSE(m_disk.exists(kOther));
    m_files.fail(Operation::Mode, kFile, EACCES);
    EXPECT_EQ(m_files.mode(kFile).error().code, EACCES);
}

TEST_F(FaultyFileSystemTest, FailsARenameByEitherName) {
    m_files.fail(Operation::Rename, kOther, EACCES);
    EXPECT_EQ(m_files.rename(kFile, kOther).error().code, EACCES);
    m_files.healAll();
    m_files.fail(Operation::Rename, kFile, EACCES);
    EXPECT_EQ(m_files.rename(kFile, kOther).error().code, EACCES);
    EXPECT_EQ(m_disk.paths(), QStringList{kFile});
}

TEST_F(FaultyFileSystemTest, AFailedWriteLeavesHalfOfItsBytes) {
    const auto file = m_files.open(kFile, OpenMode::Append);
    m_files.fail(Operation::Write, QStringLiteral("log"), ENOSPC);
    EXPECT_EQ(file.value()->write("123456").error().code, ENOSPC);
    EXPECT_EQ(m_disk.content(kFile), "content123");
}

TEST_F(FaultyFileSystemTest, FailsEachOperationOfAnOpenFile) {
    auto file = m_files.open(kFile, OpenMode::Append);
    auto reader = m_files.open(kFile, OpenMode::Read);
    for (const Operation operation :
         {Operation::Read, Operation::Size, Operation::Truncate, Operation::Sync, Operation::Close})
        m_files.fail(operation, QStringLiteral("log"), EIO);
    char byte = 0;
    EXPECT_EQ(reader.value()->read(&byte, 1).error().code, EIO);
    EXPECT_EQ(file.value()->size().error().code, EIO);
    EXPECT_EQ(file.value()->truncate(0).error().code, EIO);
    EXPECT_EQ(file.value()->sync().error().code, EIO);
    EXPECT_EQ(file.value()->close().error().code, EIO);
    EXPECT_EQ(m_disk.content(kFile), "content");
}

TEST_F(FaultyFileSystemTest, AFaultMakesAFileUnseenAndALockUnavailable) {
    m_files.fail(Operation::Exists, kFile, EIO);
    m_files.fail(Operation::Lock, kFile, EIO);
    EXPECT_FALSE(m_files.exists(kFile));
    EXPECT_EQ(m_files.lock(kFile).outcome, FileSystem::LockOutcome::Unavailable);
}

TEST_F(FaultyFileSystemTest, NothingReachesTheDiskAfterTheProcessDied) {
    const auto file = m_files.open(kFile, OpenMode::Append);
    m_files.dieAtNthCall(2);
    EXPECT_TRUE(file.value()->write("1"));
    EXPECT_FALSE(file.value()->write("2222"));
    EXPECT_FALSE(file.value()->write("3333"));
    EXPECT_FALSE(m_files.remove(kFile));
    EXPECT_EQ(m_disk.content(kFile), "content122") << "the write it died in is half done";
}

} // namespace
} // namespace vantle::fakes
