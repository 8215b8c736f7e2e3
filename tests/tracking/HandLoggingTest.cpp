#include "tracking/TrackingWorld.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using Operation = fakes::FaultyFileSystem::Operation;

class HandLoggingTest : public testing::Test, protected TrackingWorld {
protected:
    bool logMinutes(int minutes, const QString& skillId = QStringLiteral("building"),
                    const QString& note = QString()) {
        return tracker.logManual(skillId, minutes, note);
    }
};

TEST_F(HandLoggingTest, ARecordEndsNowAndIsMarkedAsManual) {
    EXPECT_TRUE(logMinutes(25, QStringLiteral("building"), QStringLiteral(" by hand\n")));
    const auto sessions = tracker.allSessions();
    ASSERT_EQ(sessions.size(), 1u);
    EXPECT_EQ(sessions[0].startedAt, time.now() - Seconds(1500));
    EXPECT_EQ(sessions[0].endedAt, time.now());
    EXPECT_EQ(sessions[0].activeSeconds, 1500);
    EXPECT_EQ(sessions[0].note, QStringLiteral("by hand"));
    EXPECT_EQ(sessions[0].source, sourceManual());
}

TEST_F(HandLoggingTest, MoreThanSixteenHoursAreCappedSilently) {
    EXPECT_TRUE(logMinutes(1000));
    EXPECT_EQ(tracker.allSessions().front().activeSeconds, 57600);
    EXPECT_TRUE(logMinutes(std::numeric_limits<int>::max()));
    EXPECT_EQ(tracker.allSessions().back().activeSeconds, 57600);
}

TEST_F(HandLoggingTest, NoMinutesAndUnknownSkillsWriteNothingAndLeaveTheErrorAlone) {
    put(log, samples::line(samples::session()));
    files.fail(Operation::Write, QStringLiteral("sessions.jsonl"), EIO);
    EXPECT_FALSE(logMinutes(5));
    const auto error = tracker.storageError();
    ASSERT_TRUE(error.has_value());
    files.healAll();
    EXPECT_FALSE(logMinutes(0));
    EXPECT_FALSE(logMinutes(-5));
    EXPECT_FALSE(logMinutes(5, QStringLiteral("nope")));
    EXPECT_FALSE(logMinutes(5, QString()));
    EXPECT_EQ(tracker.storageError(), error);
    EXPECT_EQ(content(log), samples::line(samples::session()));
}

TEST_F(HandLoggingTest, ADeletedSkillCannotBeLoggedAndItsOldRecordsStayReadable) {
    EXPECT_TRUE(logMinutes(5, QStringLiteral("marketing")));
    ASSERT_TRUE(skills.remove(QStringLiteral("marketing")));
    EXPECT_FALSE(logMinutes(5, QStringLiteral("marketing")));
    EXPECT_EQ(tracker.allSessions().size(), 1u);
    EXPECT_EQ(tracker.dataWarning(), std::nullopt);
}

TEST_F(HandLoggingTest, TimeByHandMayLieOverTrackedTimeAndBothCount) {
    tracker.start(samples::skill(QStringLiteral("building")), 0);
    time.advance(600);
    EXPECT_TRUE(logMinutes(10));
    ASSERT_TRUE(tracker.stop().has_value());
    const auto sessions = tracker.allSessions();
    ASSERT_EQ(sessions.size(), 2u);
    EXPECT_EQ(sessions[0].activeSeconds + sessions[1].activeSeconds, 1200);
    EXPECT_NE(sessions[0].id, sessions[1].id);
}

TEST_F(HandLoggingTest, ALongNoteIsCutLikeEveryTypedNote) {
    EXPECT_TRUE(logMinutes(1, QStringLiteral("building"), QString(600, QLatin1Char('x'))));
    EXPECT_EQ(tracker.allSessions().front().note, QString(500, QLatin1Char('x')));
}

} // namespace
} // namespace vantle
