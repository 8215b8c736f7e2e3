// A disk that fails while the log is written: nothing that was there is lost, and the user is
// told.
#include "tracking/TrackingWorld.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace vantle {
namespace {

using samples::id;
using samples::line;
using samples::session;
using testing::ElementsAre;

using Operation = fakes::FaultyFileSystem::Operation;

class SessionLogFaultsTest : public testing::Test, protected TrackingWorld {
protected:
    SessionLogFaultsTest() {
        put(log, before);
        QObject::connect(&process.notifications, &NotificationCenter::HFSessionsChanged,
                         [this] { ++news; });
    }

    void fail(Operation operation, const char* file, int code = EIO) {
        files.fail(operation, QString::fromLatin1(file), code);
    }
    void expectRefused(bool done) {
        EXPECT_FALSE(done);
        ASSERT_TRUE(tracker.storageError().has_value());
        EXPECT_EQ(content(log), before);
        EXPECT_EQ(temporaryFiles(), QStringList());
        time.settle();
        EXPECT_EQ(news, 0);
    }

    static constexpr const char* name = "sessions.jsonl";
    static constexpr const char* temporary = ".sessions.jsonl.*.tmp";
    const QByteArray before = line(session(1)) + "garbage\n" + line(session(2));
    int news = 0;
};

TEST_F(SessionLogFaultsTest, AFullDiskCutsTheHalfWrittenLineOffAgain) {
    disk.setCapacity(disk.used() + 40);
    expectRefused(tracker.appendToLog(session(3)));
    EXPECT_TRUE(tracker.storageError()->contains(QLatin1String("No space left on device")));
    disk.setCapacity(1 << 20);
    EXPECT_TRUE(tracker.appendToLog(session(3)));
    EXPECT_THAT(tracker.allSessions(), ElementsAre(session(1), session(2), session(3)));
    EXPECT_EQ(tracker.storageError(), std::nullopt);
}

TEST_F(SessionLogFaultsTest, AFullDiskAtTheFirstRecordLeavesNoFile) {
    ASSERT_TRUE(disk.remove(paths.sessionsFile()).ok());
    disk.setCapacity(disk.used() + 40);
    EXPECT_FALSE(tracker.appendToLog(session(3)));
    EXPECT_EQ(disk.paths(), QStringList());
}

TEST_F(SessionLogFaultsTest, AFailingSyncOfAnAppendTakesTheRecordBack) {
    fail(Operation::Sync, name);
    expectRefused(tracker.appendToLog(session(3)));
    files.healAll();
    EXPECT_TRUE(tracker.appendToLog(session(3)));
    EXPECT_EQ(content(log), before + line(session(3)));
}

TEST_F(SessionLogFaultsTest, ARecordWhoseFileDoesNotCloseIsLoggedOnceByTheNextTry) {
    fail(Operation::Close, name);
    expectRefused(tracker.appendToLog(session(3)));
    files.healAll();
    EXPECT_TRUE(tracker.appendToLog(session(3)));
    EXPECT_EQ(content(log), before + line(session(3)));
}

TEST_F(SessionLogFaultsTest, ALogThatCannotBeOpenedRefusesTheRecord) {
    fail(Operation::Open, name, EACCES);
    expectRefused(tracker.appendToLog(session(3)));
    EXPECT_TRUE(tracker.storageError()->contains(QLatin1String("Permission denied")));
}

TEST_F(SessionLogFaultsTest, ALogWhoseLengthIsUnknownIsNotWrittenTo) {
    fail(Operation::Size, name);
    expectRefused(tracker.appendToLog(session(3)));
}

TEST_F(SessionLogFaultsTest, WhenOnlyTheModeCannotBeSetTheRecordIsInTheFile) {
    fail(Operation::SetMode, name, EPERM);
    EXPECT_FALSE(tracker.appendToLog(session(3)));
    EXPECT_TRUE(tracker.storageError().has_value());
    EXPECT_EQ(content(log), before + line(session(3)));
}

TEST_F(SessionLogFaultsTest, AFullDiskAtANoteLeavesTheLogWhole) {
    disk.setCapacity(disk.used() + 40);
    expectRefused(tracker.updateNote(id(1), QStringLiteral("new")));
    expectRefused(tracker.deleteSession(id(1)));
}

TEST_F(SessionLogFaultsTest, AFailingRenameLeavesTheLogWhole) {
    fail(Operation::Rename, name);
    expectRefused(tracker.updateNote(id(1), QStringLiteral("new")));
    expectRefused(tracker.deleteSession(id(2)));
}

TEST_F(SessionLogFaultsTest, AFailingSyncOfARewriteLeavesTheLogWhole) {
    fail(Operation::Sync, temporary);
    expectRefused(tracker.updateNote(id(1), QStringLiteral("new")));
}

TEST_F(SessionLogFaultsTest, ALogThatCannotBeReadReadsAsEmptyAndStopsChangesWithoutAMessage) {
    fail(Operation::Read, name);
    EXPECT_TRUE(tracker.allSessions().empty());
    EXPECT_EQ(tracker.dataWarning(), std::nullopt);
    EXPECT_FALSE(tracker.updateNote(id(1), QStringLiteral("new")));
    EXPECT_FALSE(tracker.deleteSession(id(1)));
    EXPECT_EQ(tracker.storageError(), std::nullopt);
    EXPECT_EQ(content(log), before);
}

TEST_F(SessionLogFaultsTest, AReadThatFailsHalfWayGivesNothingRatherThanAPart) {
    QByteArray text;
    for (int i = 0; i < 10'000; ++i)
        text += line(session(i));
    put(log, text);
    ASSERT_EQ(tracker.allSessions().size(), 10'000u);
    files.forgetCalls();
    static_cast<void>(tracker.allSessions());
    const auto calls = static_cast<int>(files.calls().size());
    int reads = 0;
    for (int n = 1; n <= calls; ++n) {
        const Operation operation = files.calls()[std::size_t(n) - 1].operation;
        if (operation != Operation::Read) continue;
        ++reads;
        files.failNthCall(n, EIO);
        EXPECT_TRUE(tracker.allSessions().empty()) << "call " << n;
        EXPECT_EQ(tracker.dataWarning(), std::nullopt);
        files.healAll();
    }
    EXPECT_GT(reads, 1);
}

TEST_F(SessionLogFaultsTest, AnUndeletableFileKeepsTheLastRecord) {
    put(log, line(session(1)));
    fail(Operation::Remove, name, EPERM);
    EXPECT_FALSE(tracker.deleteSession(id(1)));
    EXPECT_TRUE(tracker.storageError().has_value());
    EXPECT_EQ(content(log), line(session(1)));
}

TEST_F(SessionLogFaultsTest, WhicheverCallOfAnAppendFailsTheRecordIsThereOnceOrNotAtAll) {
    files.forgetCalls();
    ASSERT_TRUE(tracker.appendToLog(session(3)));
    const auto calls = static_cast<int>(files.calls().size());
    for (int n = 1; n <= calls; ++n) {
        put(log, before);
        files.failNthCall(n, EIO);
        const bool done = tracker.appendToLog(session(3));
        files.healAll();
        const bool there = content(log) == before + line(session(3));
        EXPECT_TRUE(there || content(log) == before) << "call " << n;
        EXPECT_TRUE(there || !done) << "call " << n;
        EXPECT_EQ(temporaryFiles(), QStringList()) << "call " << n;
    }
}

TEST_F(SessionLogFaultsTest, WhicheverCallOfARewriteFailsTheLogIsOldOrNew) {
    Session changed = session(1);
    changed.note = QStringLiteral("new");
    const QByteArray after = line(changed) + "garbage\n" + line(session(2));
    files.forgetCalls();
    ASSERT_TRUE(tracker.updateNote(id(1), changed.note));
    const auto calls = static_cast<int>(files.calls().size());
    for (int n = 1; n <= calls; ++n) {
        put(log, before);
        files.failNthCall(n, EIO);
        const bool done = tracker.updateNote(id(1), changed.note);
        files.healAll();
        EXPECT_EQ(content(log), done ? after : before) << "call " << n;
        EXPECT_EQ(temporaryFiles(), QStringList()) << "call " << n;
    }
}

TEST_F(SessionLogFaultsTest, ASuccessClearsTheErrorAndSoDoesTheCommand) {
    fail(Operation::Open, name);
    EXPECT_FALSE(tracker.appendToLog(session(3)));
    tracker.clearStorageError();
    EXPECT_EQ(tracker.storageError(), std::nullopt);
    EXPECT_FALSE(tracker.appendToLog(session(3)));
    files.healAll();
    EXPECT_TRUE(tracker.deleteSession(id(1)));
    EXPECT_EQ(tracker.storageError(), std::nullopt);
}

TEST_F(SessionLogFaultsTest, ARecordThatIsNotThereLeavesTheErrorAsItIs) {
    fail(Operation::Open, name);
    EXPECT_FALSE(tracker.appendToLog(session(3)));
    const auto error = tracker.storageError();
    files.healAll();
    EXPECT_FALSE(tracker.deleteSession(id(99)));
    EXPECT_EQ(tracker.storageError(), error);
}

} // namespace
} // namespace vantle
