// What only the disk in memory can do: crash, fill up, and show what is on it.
#include "fakes/MemoryFileSystem.h"

#include "support/QtPrinters.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace vantle::fakes {
namespace {

using OpenMode = FileSystem::OpenMode;

const QString kDirectory = QStringLiteral("/home/ada");
const QString kFile = QStringLiteral("/home/ada/log");
const QString kOther = QStringLiteral("/home/ada/other");

class MemoryFileSystemTest : public testing::Test {
protected:
    MemoryFileSystemTest() { m_disk.setDirectory(kDirectory); }

    [[nodiscard]] std::unique_ptr<File> opened(const QString& path, OpenMode mode) {
        auto file = m_disk.open(path, mode);
        EXPECT_TRUE(file) << file.error().description().toStdString();
        return std::move(file.value());
    }

    void create(const QString& path, QByteArrayView content, bool synced) {
        const auto file = opened(path, OpenMode::CreateNew);
        EXPECT_TRUE(file->write(content));
        if (synced) {
            EXPECT_TRUE(file->sync());
        }
    }

    MemoryFileSystem m_disk;
};

TEST_F(MemoryFileSystemTest, WhatTheTestPutThereSurvivesACrash) {
    m_disk.setContent(kFile, "kept", 0640);
    m_disk.crash();
    EXPECT_EQ(m_disk.content(kFile), "kept");
    EXPECT_EQ(m_disk.mode(kFile).value(), 0640);
    EXPECT_EQ(m_disk.paths(), QStringList{kFile});
}

TEST_F(MemoryFileSystemTest, AFileWhoseNameWasNotSyncedVanishes) {
    create(kFile, "content", true);
    m_disk.crash();
    EXPECT_EQ(m_disk.content(kFile), std::nullopt);
}

TEST_F(MemoryFileSystemTest, AFileWhoseContentWasNotSyncedIsEmpty) {
    create(kFile, "content", false);
    EXPECT_TRUE(m_disk.syncDirectory(kDirectory));
    EXPECT_EQ(m_disk.contentOnDisk(kFile), "");
    m_disk.crash();
    EXPECT_EQ(m_disk.content(kFile), "");
}

TEST_F(MemoryFileSystemTest, AFileThatWasSyncedWithItsNameStays) {
    create(kFile, "content", true);
    EXPECT_TRUE(m_disk.syncDirectory(kDirectory));
    m_disk.crash();
    EXPECT_EQ(m_disk.content(kFile), "content");
}

TEST_F(MemoryFileSystemTest, AnAppendLosesItsTailAtAnyByte) {
    for (qsizetype torn = 0; torn < 6; ++torn) {
        m_disk.setContent(kFile, "old");
        EXPECT_TRUE(opened(kFile, OpenMode::Append)->write("tail"));
        m_disk.crash(torn);
        EXPECT_EQ(m_disk.content(kFile),
                  QByteArray("oldtail").first(std::min<qsizetype>(3 + torn, 7)));
    }
}

TEST_F(MemoryFileSystemTest, ACutThatWasNotSyncedIsUndone) {
    m_disk.setContent(kFile, "old content");
    EXPECT_TRUE(opened(kFile, OpenMode::Append)->truncate(3));
    m_disk.crash(100);
    EXPECT_EQ(m_disk.content(kFile), "old content");
}

TEST_F(MemoryFileSystemTest, ARenameThatWasNotSyncedIsUndone) {
    m_disk.setContent(kFile, "old");
    create(kOther, "new", true);
    EXPECT_TRUE(m_disk.rename(kOther, kFile));
    EXPECT_EQ(m_disk.content(kFile), "new");
    EXPECT_EQ(m_disk.contentOnDisk(kFile), "old");
    m_disk.crash();
    EXPECT_EQ(m_disk.content(kFile), "old");
    EXPECT_EQ(m_disk.content(kOther), std::nullopt);
}

TEST_F(MemoryFileSystemTest, ARemovalThatWasNotSyncedIsUndone) {
    m_disk.setContent(kFile, "old");
    EXPECT_TRUE(m_disk.remove(kFile));
    m_disk.crash();
    EXPECT_EQ(m_disk.content(kFile), "old");
    EXPECT_TRUE(m_disk.remove(kFile));
    EXPECT_TRUE(m_disk.syncDirectory(kDirectory));
    m_disk.crash();
    EXPECT_EQ(m_disk.content(kFile), std::nullopt);
}

TEST_F(MemoryFileSystemTest, ADirectoryWhoseNameWasNotSyncedTakesItsFilesAlong) {
    const QString directory = QStringLiteral("/home/ada/new");
    EXPECT_TRUE(m_disk.makeDirectories(directory, 0700));
    create(directory + QStringLiteral("/a"), "a", true);
    EXPECT_TRUE(m_disk.syncDirectory(directory));
    m_disk.crash();
    EXPECT_FALSE(m_disk.exists(directory));
    EXPECT_EQ(m_disk.paths(), QStringList());
}

TEST_F(MemoryFileSystemTest, FilesAndLocksFromBeforeACrashAreDead) {
    m_disk.setContent(kFile, "old");
    const auto file = opened(kFile, OpenMode::Append);
    auto lock = m_disk.lock(kOther);
    m_disk.crash();
    EXPECT_EQ(file->write("x").error().code, EBADF);
    EXPECT_EQ(m_disk.content(kFile), "old");

    const auto next = m_disk.lock(kOther);
    EXPECT_EQ(next.outcome, FileSystem::LockOutcome::Held);
    lock.lock.reset();
    EXPECT_EQ(m_disk.lock(kOther).outcome, FileSystem::LockOutcome::TakenByOther)
        << "the dead process must not free the lock of the living one";
}

TEST_F(MemoryFileSystemTest, AFullVolumeTakesWhatFitsAndFails) {
    m_disk.setContent(kOther, "12345");
    m_disk.setCapacity(8);
    const auto file = opened(kFile, OpenMode::CreateNew);
    EXPECT_EQ(file->write("abcdef").error().code, ENOSPC);
    EXPECT_EQ(m_disk.content(kFile), "abc");
    EXPECT_EQ(m_disk.used(), 8);
    EXPECT_TRUE(file->write(""));

    EXPECT_TRUE(m_disk.remove(kOther));
    EXPECT_TRUE(file->write("def")) << "room that was freed can be used";
    EXPECT_EQ(m_disk.content(kFile), "abcdef");
}

TEST_F(MemoryFileSystemTest, ListsFilesInOrder) {
    m_disk.setContent(kOther, "");
    m_disk.setContent(kFile, "");
    m_disk.setDirectory(QStringLiteral("/home/ada/empty"));
    EXPECT_EQ(m_disk.paths(), (QStringList{kFile, kOther}));
}

} // namespace
} // namespace vantle::fakes
