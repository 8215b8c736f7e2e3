#include "platform/WholeFile.h"

#include "fakes/FaultyFileSystem.h"
#include "fakes/MemoryFileSystem.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace vantle {
namespace {

using fakes::FaultyFileSystem;
using fakes::MemoryFileSystem;

const QString kPath = QStringLiteral("/home/ada/config/entry");

class WholeFile : public testing::Test {
protected:
    MemoryFileSystem m_disk;
    FaultyFileSystem m_files{m_disk};
};

TEST_F(WholeFile, IsCreatedPrivateAndOnTheDisk) {
    m_disk.setDirectory(QStringLiteral("/home/ada/config"));
    EXPECT_TRUE(createFile(m_files, kPath, "content"));
    EXPECT_EQ(m_disk.mode(kPath).value(), 0600);
    ASSERT_TRUE(m_disk.syncDirectory(QStringLiteral("/home/ada/config")));
    m_disk.crash();
    EXPECT_EQ(m_disk.content(kPath), "content");
}

TEST_F(WholeFile, IsNotCreatedOverAnother) {
    m_disk.setContent(kPath, "old");
    EXPECT_EQ(createFile(m_files, kPath, "new").error().code, EEXIST);
    EXPECT_EQ(m_disk.content(kPath), "old") << "nor removed";
}

TEST_F(WholeFile, ReplacesTheOldOneAndItsMode) {
    m_disk.setContent(kPath, "old", 0644);
    EXPECT_TRUE(replaceFile(m_files, kPath, "new"));
    m_disk.crash();
    EXPECT_EQ(m_disk.content(kPath), "new");
    EXPECT_EQ(m_disk.mode(kPath).value(), 0600);
    EXPECT_EQ(m_disk.paths(), QStringList{kPath});
}

TEST_F(WholeFile, MakesTheDirectoryForItsOwnerOnly) {
    EXPECT_TRUE(replaceFile(m_files, kPath, "new"));
    EXPECT_EQ(m_disk.mode(QStringLiteral("/home/ada/config")).value(), 0700);
}

TEST_F(WholeFile, TakenAwayHasTheModeOfTheUsersOtherFiles) {
    EXPECT_TRUE(exportFile(m_files, kPath, "new"));
    EXPECT_EQ(m_disk.content(kPath), "new");
    EXPECT_EQ(m_disk.mode(kPath).value(), 0644);
}

TEST_F(WholeFile, TakenAwayOverAnotherKeepsThatOnesMode) {
    m_disk.setContent(kPath, "old", 0640);
    EXPECT_TRUE(exportFile(m_files, kPath, "new"));
    EXPECT_EQ(m_disk.mode(kPath).value(), 0640);
}

TEST_F(WholeFile, KeepsTheOldOneWhereverReplacingFails) {
    int failures = 0;
    for (int n = 1; n < 10; ++n) {
        m_disk.setContent(kPath, "old");
        m_files.failNthCall(n, ENOSPC);
        const bool replaced = replaceFile(m_files, kPath, "new").ok();
        if (!replaced) ++failures;
        EXPECT_EQ(m_disk.content(kPath), replaced ? "new" : "old") << n;
        EXPECT_EQ(m_disk.paths(), QStringList{kPath}) << "nothing temporary stays: " << n;
    }
    EXPECT_EQ(failures, 6) << "make directory, create, write, sync, close, rename";
}

TEST_F(WholeFile, IsTheOldOneOrTheNewOneWhereverTheMachineStops) {
    for (int n = 1; n < 10; ++n) {
        for (const qsizetype tornTail : {0, 1, 100}) {
            m_disk.setContent(kPath, "old");
            m_files.dieAtNthCall(n);
            const bool replaced = replaceFile(m_files, kPath, "new").ok();
            m_disk.crash(tornTail);
            m_files.healAll();
            EXPECT_THAT(m_disk.content(kPath), testing::AnyOf("old", "new")) << n;
            if (replaced && n > 7) {
                EXPECT_EQ(m_disk.content(kPath), "new") << n;
            }
        }
    }
}

TEST_F(WholeFile, ReplacedOnAFullDiskLeavesNothingBehind) {
    m_disk.setContent(kPath, "old");
    m_disk.setCapacity(5);
    EXPECT_EQ(replaceFile(m_files, kPath, "new").error().code, ENOSPC);
    EXPECT_EQ(m_disk.content(kPath), "old");
    EXPECT_EQ(m_disk.used(), 3);
}

} // namespace
} // namespace vantle
