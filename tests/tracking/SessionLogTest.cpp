// The log as it is meant to be; what damage and failing disks do to it stands in files of its own.
#include "tracking/SessionLog.h"

#include "tracking/TrackingWorld.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using samples::id;
using samples::line;
using samples::session;
using testing::ElementsAre;
using testing::IsEmpty;

class SessionLogTest : public testing::Test, protected TrackingWorld {
protected:
    SessionLogTest() {
        QObject::connect(&process.notifications, &NotificationCenter::HFSessionsChanged,
                         [this] { ++news; });
    }
    int news = 0; ///< how often history views were told to reload
};

TEST_F(SessionLogTest, AMissingFileReadsAsTheEmptyListAndClearsTheWarning) {
    put(log, "garbage\n");
    EXPECT_THAT(tracker.allSessions(), IsEmpty());
    EXPECT_TRUE(tracker.dataWarning().has_value());
    ASSERT_TRUE(disk.remove(paths.sessionsFile()).ok());
    EXPECT_THAT(tracker.allSessions(), IsEmpty());
    EXPECT_EQ(tracker.dataWarning(), std::nullopt);
}

TEST_F(SessionLogTest, TheFirstRecordMakesAPrivateFileOfOneLine) {
    EXPECT_TRUE(tracker.appendToLog(session()));
    EXPECT_EQ(content(log), line(session()));
    EXPECT_EQ(mode(log), 0600);
    EXPECT_THAT(tracker.allSessions(), ElementsAre(session()));
}

TEST_F(SessionLogTest, LaterRecordsGoToTheEndAndMakeTheFilePrivateAgain) {
    put(log, line(session(1)), 0644);
    EXPECT_TRUE(tracker.appendToLog(session(2)));
    EXPECT_EQ(content(log), line(session(1)) + line(session(2)));
    EXPECT_EQ(mode(log), 0600);
}

TEST_F(SessionLogTest, AnAppendedRecordIsOnTheDiskWhenTheCallReturns) {
    EXPECT_TRUE(tracker.appendToLog(session(1)));
    EXPECT_EQ(disk.contentOnDisk(paths.sessionsFile()), line(session(1)));
    EXPECT_TRUE(tracker.appendToLog(session(2)));
    EXPECT_EQ(disk.contentOnDisk(paths.sessionsFile()), line(session(1)) + line(session(2)));
}

TEST_F(SessionLogTest, ARecordThatBreaksTheRulesIsNotWritten) {
    Session bad = session();
    bad.activeSeconds = 604801;
    EXPECT_FALSE(tracker.appendToLog(bad));
    EXPECT_EQ(content(log), std::nullopt);
    ASSERT_TRUE(tracker.storageError().has_value());
    EXPECT_TRUE(tracker.storageError()->startsWith(QStringLiteral(
        "Couldn’t save your hours. Check available disk space and folder permissions, then try "
        "again. (")));
}

TEST_F(SessionLogTest, NewsOfAnAppendArriveAfterThePresentWork) {
    EXPECT_TRUE(tracker.appendToLog(session()));
    EXPECT_EQ(news, 0);
    time.settle();
    EXPECT_EQ(news, 1);
}

TEST_F(SessionLogTest, RecordsAreReadByTheirEndsOldestFirst) {
    put(log, line(session(3)) + line(session(1)) + line(session(2)));
    EXPECT_THAT(tracker.allSessions(), ElementsAre(session(1), session(2), session(3)));
}

TEST_F(SessionLogTest, RecordsOfOneEndKeepTheOrderOfTheFile) {
    const auto ending = [](int number) {
        Session result = session(1);
        result.id = id(number);
        return result;
    };
    put(log, line(session(9)) + line(ending(5)) + line(ending(2)) + line(ending(4)));
    EXPECT_THAT(tracker.allSessions(), ElementsAre(ending(5), ending(2), ending(4), session(9)));
}

TEST_F(SessionLogTest, ARecordOfADeletedSkillReadsNormally) {
    Session orphan = session();
    orphan.skillId = QStringLiteral("long_gone");
    put(log, line(orphan));
    EXPECT_THAT(tracker.allSessions(), ElementsAre(orphan));
    EXPECT_EQ(tracker.dataWarning(), std::nullopt);
}

TEST_F(SessionLogTest, ANoteIsTrimmedCutAndStoredInItsPlace) {
    put(log, line(session(1)) + line(session(2)) + line(session(3)));
    EXPECT_TRUE(tracker.updateNote(id(2), QStringLiteral(" ") + QString(600, QLatin1Char('x'))));
    Session changed = session(2);
    changed.note = QString(500, QLatin1Char('x'));
    EXPECT_EQ(content(log), line(session(1)) + line(changed) + line(session(3)));
    time.settle();
    EXPECT_EQ(news, 1);
}

TEST_F(SessionLogTest, ANoteOfOnlySpacesIsTheEmptyNote) {
    put(log, line(session()));
    EXPECT_TRUE(tracker.updateNote(id(1), QStringLiteral(" \u2003\n ")));
    EXPECT_EQ(tracker.allSessions().front().note, QString());
}

TEST_F(SessionLogTest, ANoteForAnUnknownRecordChangesNothing) {
    put(log, line(session()), 0644);
    EXPECT_FALSE(tracker.updateNote(id(99), QStringLiteral("x")));
    EXPECT_EQ(content(log), line(session()));
    EXPECT_EQ(mode(log), 0644);
    time.settle();
    EXPECT_EQ(news, 0);
    EXPECT_EQ(tracker.storageError(), std::nullopt);
}

TEST_F(SessionLogTest, WithoutAFileThereIsNothingToChange) {
    EXPECT_FALSE(tracker.updateNote(id(1), QStringLiteral("x")));
    EXPECT_FALSE(tracker.deleteSession(id(1)));
    EXPECT_EQ(content(log), std::nullopt);
    EXPECT_EQ(tracker.storageError(), std::nullopt);
}

TEST_F(SessionLogTest, EveryRecordOfAnIdIsChanged) {
    put(log, line(session(1)) + line(session(2)) + line(session(1)));
    EXPECT_TRUE(tracker.updateNote(id(1), QStringLiteral("both")));
    int changed = 0;
    for (const Session& record : tracker.allSessions())
        changed += record.note == QStringLiteral("both");
    EXPECT_EQ(changed, 2);
    EXPECT_TRUE(tracker.deleteSession(id(1)));
    EXPECT_EQ(content(log), line(session(2)));
}

TEST_F(SessionLogTest, DeletingTheOnlyRecordRemovesTheFileAndTheNextAppendMakesItPrivate) {
    put(log, line(session(1)), 0644);
    EXPECT_TRUE(tracker.deleteSession(id(1)));
    EXPECT_EQ(content(log), std::nullopt);
    EXPECT_TRUE(tracker.appendToLog(session(2)));
    EXPECT_EQ(content(log), line(session(2)));
    EXPECT_EQ(mode(log), 0600);
}

TEST_F(SessionLogTest, ARecordMadeInTheFutureStaysInTheListAndOutOfTheTotals) {
    const Date now = samples::morning();
    Session future = session();
    future.startedAt = now + Seconds(300);
    EXPECT_TRUE(TrackerCore::countsInTotals(future, now));
    future.startedAt = now + Seconds(300.125);
    EXPECT_FALSE(TrackerCore::countsInTotals(future, now));
    future.startedAt = now - Seconds(1e9);
    EXPECT_TRUE(TrackerCore::countsInTotals(future, now));
}

TEST_F(SessionLogTest, TheLogIsReadAfterTheMarkersThatAreQueued) {
    ASSERT_TRUE(tracker.start(samples::skill(QStringLiteral("building")), 0).has_value());
    EXPECT_EQ(content(marker), std::nullopt);
    EXPECT_THAT(tracker.allSessions(), IsEmpty());
    EXPECT_TRUE(content(marker).has_value());
}

TEST_F(SessionLogTest, ALogLongerThanOneBlockIsReadWhole) {
    QByteArray text;
    Session record = session();
    record.note = QString(1900, QLatin1Char('n'));
    constexpr int kRecords = 3000;
    for (int i = 0; i < kRecords; ++i) {
        record.id = id(i);
        text += line(record);
    }
    put(log, text);
    const std::vector<Session> sessions = tracker.allSessions();
    ASSERT_EQ(sessions.size(), std::size_t(kRecords));
    for (int i = 0; i < kRecords; ++i)
        ASSERT_EQ(sessions[std::size_t(i)].id, id(i));
}

} // namespace
} // namespace vantle
