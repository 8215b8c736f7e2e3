#include "tracking/AppPaths.h"

#include "tracking/TrackingWorld.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace vantle {
namespace {

using Operation = fakes::FaultyFileSystem::Operation;
using testing::ElementsAre;

class AppPathsTest : public testing::Test {
protected:
    AppPathsTest() { disk.setDirectory(QStringLiteral("/data")); }

    QString primary = QStringLiteral("/data/Vantle");
    QString old = QStringLiteral("/data/Hourfold");
    QString target = QStringLiteral("/data/Vantle/target");
    fakes::MemoryFileSystem disk;
    fakes::FaultyFileSystem files{disk};
    AppPaths paths{files, QStringLiteral("/data")};
};

TEST_F(AppPathsTest, TheFirstAccessMakesTheSupportDirectory) {
    EXPECT_EQ(paths.supportDir(), primary);
    EXPECT_TRUE(disk.exists(primary));
    EXPECT_FALSE(disk.exists(old));
}

TEST_F(AppPathsTest, TheDirectoryOfEarlierVersionsIsTakenOver) {
    disk.setContent(old + QLatin1String("/sessions.jsonl"), "old work");
    EXPECT_EQ(paths.supportDir(), primary);
    EXPECT_FALSE(disk.exists(old));
    EXPECT_EQ(disk.content(paths.sessionsFile()), "old work");
}

TEST_F(AppPathsTest, WithBothDirectoriesTheOldOneStaysUntouchedAndUnread) {
    disk.setContent(old + QLatin1String("/sessions.jsonl"), "old work");
    disk.setDirectory(primary);
    EXPECT_EQ(paths.supportDir(), primary);
    EXPECT_EQ(disk.content(old + QLatin1String("/sessions.jsonl")), "old work");
    EXPECT_FALSE(files.exists(paths.sessionsFile()));
    for (const auto& call : files.calls())
        EXPECT_FALSE(call.path.startsWith(old)) << call.path.toStdString();
}

TEST_F(AppPathsTest, AfterAFailedTakeOverTheOldDirectoryIsNeverLookedAtAgain) {
    disk.setContent(old + QLatin1String("/sessions.jsonl"), "old work");
    files.fail(Operation::Rename, old, EACCES);
    EXPECT_EQ(paths.supportDir(), primary);
    files.healAll();
    EXPECT_EQ(paths.supportDir(), primary);
    EXPECT_TRUE(disk.exists(primary));
    EXPECT_EQ(disk.content(old + QLatin1String("/sessions.jsonl")), "old work");
    EXPECT_FALSE(files.exists(paths.sessionsFile()));
}

TEST_F(AppPathsTest, ADirectoryThatCannotBeMadeIsNamedAllTheSame) {
    files.fail(Operation::MakeDirectories, primary, EACCES);
    EXPECT_EQ(paths.supportDir(), primary);
    EXPECT_FALSE(disk.exists(primary));
    EXPECT_FALSE(paths.writeProtected("x", target).ok());
}

TEST_F(AppPathsTest, ASupportDirectoryThatIsAFileFailsEveryWriteAndNothingElse) {
    disk.setContent(primary, "in the way");
    EXPECT_EQ(paths.supportDir(), primary);
    EXPECT_FALSE(paths.writeProtected("x", target).ok());
    EXPECT_EQ(disk.content(primary), "in the way");
}

TEST_F(AppPathsTest, TheDataFilesAreFiveInAFixedOrder) {
    EXPECT_THAT(paths.allDataFiles(),
                ElementsAre(primary + QLatin1String("/sessions.jsonl"),
                            primary + QLatin1String("/open-session.json"),
                            primary + QLatin1String("/skills.json"),
                            primary + QLatin1String("/auto-rules.json"),
                            primary + QLatin1String("/corrupt-sessions.jsonl")));
    EXPECT_FALSE(paths.allDataFiles().contains(paths.instanceLock()));
}

TEST_F(AppPathsTest, ANewFileIsBornPrivate) {
    EXPECT_TRUE(paths.writeProtected("new", target).ok());
    EXPECT_EQ(disk.content(target), "new");
    EXPECT_EQ(disk.mode(target).value(), 0600);
    EXPECT_EQ(disk.mode(primary).value(), 0700);
    EXPECT_EQ(disk.paths(), QStringList{target});
}

TEST_F(AppPathsTest, AReplacedFileBecomesPrivate) {
    disk.setContent(target, "old", 0644);
    EXPECT_TRUE(paths.writeProtected("new", target).ok());
    EXPECT_EQ(disk.content(target), "new");
    EXPECT_EQ(disk.mode(target).value(), 0600);
}

TEST_F(AppPathsTest, AReplacementIsOnTheDiskWhenItReturns) {
    disk.setContent(target, "old");
    EXPECT_TRUE(paths.writeProtected("new", target).ok());
    EXPECT_EQ(disk.contentOnDisk(target), "new");
}

TEST_F(AppPathsTest, AFullDiskLeavesTheOldFileWholeAndNoTemporaryFile) {
    disk.setContent(target, "old");
    disk.setCapacity(disk.used() + 2);
    const Result<> written = paths.writeProtected("newer", target);
    ASSERT_FALSE(written.ok());
    EXPECT_EQ(written.error().code, ENOSPC);
    EXPECT_EQ(disk.content(target), "old");
    EXPECT_EQ(disk.paths(), QStringList{target});
}

TEST_F(AppPathsTest, WhicheverStepOfAReplacementFailsTheFileIsOldOrNewAndAlone) {
    disk.setContent(target, "old");
    ASSERT_TRUE(paths.writeProtected("old", target).ok());
    const auto steps = static_cast<int>(files.calls().size());
    for (int step = 1; step <= steps; ++step) {
        files.failNthCall(step, EIO);
        const bool written = paths.writeProtected("new", target).ok();
        files.healAll();
        EXPECT_EQ(disk.content(target), written ? "new" : "old") << "step " << step;
        EXPECT_EQ(disk.paths(), QStringList{target}) << "step " << step;
        ASSERT_TRUE(paths.writeProtected("old", target).ok());
    }
}

TEST_F(AppPathsTest, TheFirstErrorIsTheOneThatIsTold) {
    const QString temporary = QStringLiteral(".target.*.tmp");
    files.fail(Operation::Sync, temporary, ENOSPC);
    files.fail(Operation::Remove, temporary, EACCES);
    EXPECT_EQ(paths.writeProtected("new", target).error().code, ENOSPC);
}

TEST_F(AppPathsTest, ADirectoryInThePlaceOfTheFileIsAFailureThatLeavesIt) {
    disk.setDirectory(target);
    disk.setContent(target + QLatin1String("/inside"), "x");
    EXPECT_FALSE(paths.writeProtected("new", target).ok());
    EXPECT_EQ(disk.paths(), QStringList{target + QLatin1String("/inside")});
}

TEST_F(AppPathsTest, TheTemporaryFileLiesBesideItsTargetAndNamesIt) {
    EXPECT_TRUE(paths.writeProtected("new", target).ok());
    QString temporary;
    for (const auto& call : files.calls())
        if (call.operation == Operation::Create) temporary = call.path;
    EXPECT_THAT(temporary.toStdString(),
                testing::MatchesRegex("/data/Vantle/\\.target\\.[0-9A-F-]+\\.tmp"));
}

TEST_F(AppPathsTest, RemovingAFileThatIsNotThereIsNoFailure) {
    EXPECT_TRUE(paths.removeIfPresent(target).ok());
    disk.setContent(target, "x");
    EXPECT_TRUE(paths.removeIfPresent(target).ok());
    EXPECT_FALSE(disk.exists(target));
    disk.setContent(target, "x");
    files.fail(Operation::Remove, QStringLiteral("target"), EPERM);
    EXPECT_EQ(paths.removeIfPresent(target).error().code, EPERM);
}

TEST_F(AppPathsTest, ANewDataHomeOutlivesALossOfPower) {
    fakes::MemoryFileSystem empty;
    const AppPaths fresh(empty, QStringLiteral("/home/ada/.local/share"));
    ASSERT_TRUE(fresh.writeProtected("[]", fresh.skillsFile()));
    empty.crash();
    EXPECT_EQ(empty.content(fresh.skillsFile()), "[]");
}

TEST_F(AppPathsTest, AFileThatIsRemovedForGoodDoesNotComeBackWithThePower) {
    disk.setContent(target, "x");
    EXPECT_TRUE(paths.removeForGood(target));
    disk.crash();
    EXPECT_FALSE(disk.exists(target));
    EXPECT_TRUE(paths.removeForGood(target)) << "one that is not there is no failure";
}

TEST_F(AppPathsTest, AFileThatCanNotBeLookedUpIsRemovedAllTheSame) {
    disk.setContent(target, "x");
    files.fail(Operation::Exists, QStringLiteral("target"), EACCES);
    EXPECT_TRUE(paths.removeIfPresent(target));
    EXPECT_FALSE(disk.exists(target));
}

TEST_F(AppPathsTest, OpenPermissionsAreTakenBackAtLaunch) {
    disk.setDirectory(primary, 0755);
    ASSERT_TRUE(disk.setMode(primary, 0755).ok());
    for (const QString& path : paths.allDataFiles())
        disk.setContent(path, "x", 0644);
    const QString other = primary + QLatin1String("/notes.txt");
    disk.setContent(other, "x", 0644);
    paths.enforcePrivatePermissions();
    EXPECT_EQ(disk.mode(primary).value(), 0700);
    for (const QString& path : paths.allDataFiles())
        EXPECT_EQ(disk.mode(path).value(), 0600) << path.toStdString();
    EXPECT_EQ(disk.mode(other).value(), 0644);
}

TEST_F(AppPathsTest, TakingPermissionsBackMakesNoFileThatWasNotThere) {
    paths.enforcePrivatePermissions();
    EXPECT_EQ(disk.paths(), QStringList());
}

TEST_F(AppPathsTest, TheRetiredQueueFileDisappearsUnread) {
    const QString retired = primary + QLatin1String("/sync-queue.json");
    disk.setContent(retired, "secret");
    paths.enforcePrivatePermissions();
    EXPECT_FALSE(disk.exists(retired));
    for (const auto& call : files.calls())
        EXPECT_FALSE(call.operation == Operation::Open && call.path == retired);
}

TEST_F(AppPathsTest, HalfWrittenFilesOfADeadProcessDisappearAtLaunch) {
    const QString id = QStringLiteral("0F6B1D1E-4A52-4C1B-9A1E-7F3B2C5D8E90");
    for (const QString& path : paths.allDataFiles()) {
        const QString name = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
        disk.setContent(QStringLiteral("%1/.%2.%3.tmp").arg(primary, name, id), "half");
    }
    QStringList others = {primary + QStringLiteral("/.notes.txt.%1.tmp").arg(id),
                          primary + QStringLiteral("/.sessions.jsonl.mine.tmp"),
                          primary + QStringLiteral("/sessions.jsonl.%1.tmp").arg(id)};
    for (const QString& other : others)
        disk.setContent(other, "kept");
    paths.enforcePrivatePermissions();
    others.sort();
    EXPECT_EQ(disk.paths(), others);
}

TEST_F(AppPathsTest, FailuresToTightenAreOfNoConsequence) {
    const QString retired = primary + QLatin1String("/sync-queue.json");
    disk.setContent(paths.sessionsFile(), "x", 0644);
    disk.setContent(paths.skillsFile(), "x", 0644);
    disk.setContent(retired, "x");
    files.fail(Operation::SetMode, QStringLiteral("Vantle"), EPERM);
    files.fail(Operation::SetMode, QStringLiteral("sessions.jsonl"), EPERM);
    files.fail(Operation::Remove, QStringLiteral("sync-queue.json"), EPERM);
    paths.enforcePrivatePermissions();
    EXPECT_EQ(disk.mode(paths.sessionsFile()).value(), 0644);
    EXPECT_EQ(disk.mode(paths.skillsFile()).value(), 0600);
    EXPECT_TRUE(disk.exists(retired));
}

} // namespace
} // namespace vantle
