// The marker of the open session on the disk, and a disk that fails under the tracker.
#include "tracking/TrackingWorld.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cerrno>

namespace vantle {
namespace {

using Operation = fakes::FaultyFileSystem::Operation;
using State = TrackerCore::State;

class TrackerMarkerTest : public testing::Test, protected TrackingWorld {
protected:
    bool start(int backfill = 0) {
        return tracker.start(samples::skill(QStringLiteral("building")), backfill).has_value();
    }
    /// The marker as the disk has it after all queued work.
    std::optional<OpenSessionMarker> markerOnDisk() {
        time.settle();
        const auto bytes = disk.contentOnDisk(paths.openSessionMarker());
        return bytes ? json::decodeMarker(*bytes) : std::nullopt;
    }
    void failMarkerWrites() {
        files.fail(Operation::Create, QStringLiteral(".open-session.json.*.tmp"), ENOSPC);
    }
    void failLogWrites() { files.fail(Operation::Write, QStringLiteral("sessions.jsonl"), EIO); }

    const Date begin = samples::morning();
};

TEST_F(TrackerMarkerTest, IsThereExactlyWhileASessionIsOpen) {
    EXPECT_EQ(markerOnDisk(), std::nullopt);
    start();
    EXPECT_TRUE(markerOnDisk().has_value());
    EXPECT_EQ(mode(marker), 0600);
    tracker.stop();
    EXPECT_EQ(content(marker), std::nullopt);
}

TEST_F(TrackerMarkerTest, IsExactAtStartPauseResumeAndBackfill) {
    start(5);
    auto found = markerOnDisk();
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(found->startedAt, begin - Seconds(300));
    EXPECT_EQ(found->activeSeconds, 300);
    EXPECT_EQ(found->lastSeenAt, begin);

    time.advance(50);
    tracker.pause(begin + Seconds(40));
    found = markerOnDisk();
    EXPECT_EQ(found->activeSeconds, 340);
    EXPECT_EQ(found->lastSeenAt, begin + Seconds(40));

    time.advance(50);
    tracker.resume();
    found = markerOnDisk();
    EXPECT_EQ(found->activeSeconds, 340);
    EXPECT_EQ(found->lastSeenAt, begin + Seconds(100));

    EXPECT_TRUE(tracker.applyBackfill(10));
    found = markerOnDisk();
    EXPECT_EQ(found->activeSeconds, 940);
    EXPECT_EQ(found->startedAt, begin - Seconds(900));
}

TEST_F(TrackerMarkerTest, LagsTheClockByAtMostSixtyTicks) {
    start();
    time.advance(59);
    EXPECT_EQ(markerOnDisk()->activeSeconds, 0);
    EXPECT_EQ(tracker.internals().ticksSinceMarkerWrite, 59);
    time.advance(1);
    EXPECT_EQ(markerOnDisk()->activeSeconds, 60);
    EXPECT_EQ(markerOnDisk()->lastSeenAt, begin + Seconds(60));
    EXPECT_EQ(tracker.internals().ticksSinceMarkerWrite, 0);
    for (int minute = 2; minute <= 120; ++minute) {
        time.advance(60);
        ASSERT_EQ(markerOnDisk()->activeSeconds, 60 * minute);
    }
}

TEST_F(TrackerMarkerTest, IsWrittenOffTheMainThread) {
    start();
    EXPECT_FALSE(process.queue.empty());
    EXPECT_EQ(content(marker), std::nullopt);
    tracker.drainPendingIO();
    EXPECT_TRUE(content(marker).has_value());
}

TEST_F(TrackerMarkerTest, AQueuedWriteCannotLandAfterTheRemoval) {
    start();
    time.advance(10);
    tracker.pause(time.now());
    tracker.resume();
    ASSERT_FALSE(process.queue.empty());
    ASSERT_TRUE(tracker.stop().has_value());
    time.settle();
    EXPECT_EQ(content(marker), std::nullopt);
}

TEST_F(TrackerMarkerTest, TheRecordIsOnTheDiskBeforeTheMarkerGoes) {
    start();
    time.advance(100);
    time.settle();
    files.forgetCalls();
    tracker.stop();
    const std::vector<fakes::FaultyFileSystem::Call> calls = files.calls();
    const auto logged =
        std::ranges::find(calls, paths.sessionsFile(), &fakes::FaultyFileSystem::Call::target);
    const auto removed =
        std::ranges::find(calls, Operation::Remove, &fakes::FaultyFileSystem::Call::operation);
    ASSERT_NE(logged, calls.end());
    ASSERT_NE(removed, calls.end());
    EXPECT_LT(logged, removed);
}

TEST_F(TrackerMarkerTest, AMarkerThatCannotBeMadeKeepsASessionFromOpening) {
    fakes::ManualQueue queue;
    TrackerCore other({time, time, queue, paths, preferences, skills, process.notifications,
                       [](const OpenSessionMarker&) -> Result<QByteArray> {
                           return Error{0, {}, {}, QStringLiteral("no form")};
                       }});
    int started = 0;
    other.onSessionStarted = [&](const Skill&, Date) { ++started; };
    EXPECT_EQ(other.start(samples::skill(QStringLiteral("building")), 0), std::nullopt);
    EXPECT_EQ(other.state(), State::Idle);
    EXPECT_EQ(started, 0);
    EXPECT_FALSE(other.internals().ticking);
    EXPECT_TRUE(other.storageError()->endsWith(QLatin1String("(no form)")));
}

TEST_F(TrackerMarkerTest, AFailingWriteIsToldAndNeverStopsTheClock) {
    failMarkerWrites();
    EXPECT_TRUE(start());
    EXPECT_EQ(tracker.storageError(), std::nullopt);
    time.settle();
    EXPECT_TRUE(tracker.storageError()->contains(QLatin1String("No space left on device")));
    time.advance(100);
    EXPECT_EQ(tracker.displayActiveSeconds(), 100);
    files.healAll();
    time.advance(20);
    EXPECT_EQ(tracker.storageError(), std::nullopt);
    EXPECT_EQ(markerOnDisk()->activeSeconds, 120);
}

TEST_F(TrackerMarkerTest, NewsOfAFailedWriteDoNotOutliveTheTracker) {
    failMarkerWrites();
    fakes::ManualQueue queue;
    fakes::VirtualTime ownTime(begin);
    {
        TrackerCore shortLived(
            {ownTime, ownTime, queue, paths, preferences, skills, process.notifications});
        ASSERT_TRUE(shortLived.start(samples::skill(QStringLiteral("building")), 0).has_value());
    }
    queue.runDry();
    ownTime.settle();
    EXPECT_EQ(ownTime.timerCount(), 0u);
}

TEST_F(TrackerMarkerTest, AnUnremovableMarkerDoesNotKeepTheSessionOpen) {
    files.fail(Operation::Remove, QStringLiteral("open-session.json"), EPERM);
    start();
    time.advance(100);
    EXPECT_TRUE(tracker.stop().has_value());
    EXPECT_EQ(tracker.state(), State::Idle);
    EXPECT_TRUE(content(marker).has_value());
    EXPECT_EQ(tracker.storageError(), std::nullopt);
}

TEST_F(TrackerMarkerTest, AStopThatCannotBeWrittenKeepsSessionMarkerAndClock) {
    put(log, samples::line(samples::session()));
    start();
    time.advance(30);
    failLogWrites();
    int ended = 0;
    tracker.onSessionEnded = [&](const Session&) { ++ended; };
    EXPECT_EQ(tracker.stop(), std::nullopt);
    EXPECT_EQ(tracker.state(), State::Running);
    EXPECT_TRUE(tracker.storageError().has_value());
    EXPECT_TRUE(markerOnDisk().has_value());
    EXPECT_EQ(ended, 0);
    time.advance(10);
    EXPECT_EQ(tracker.displayActiveSeconds(), 40);
    files.healAll();
    const auto session = tracker.stop();
    ASSERT_TRUE(session.has_value());
    EXPECT_EQ(session->activeSeconds, 40);
    EXPECT_EQ(tracker.allSessions().size(), 2u);
    EXPECT_EQ(ended, 1);
}

TEST_F(TrackerMarkerTest, ARepeatedStopAfterAFailedModeLogsTheSameIdTwice) {
    put(log, samples::line(samples::session()));
    start();
    time.advance(30);
    files.fail(Operation::SetMode, QStringLiteral("sessions.jsonl"), EPERM);
    EXPECT_EQ(tracker.stop(), std::nullopt);
    files.healAll();
    const auto session = tracker.stop();
    ASSERT_TRUE(session.has_value());
    const auto sessions = tracker.allSessions();
    EXPECT_EQ(std::ranges::count(sessions, session->id, &Session::id), 2);
}

TEST_F(TrackerMarkerTest, ADirectoryInThePlaceOfTheMarkerIsAFailureThatIsTold) {
    disk.setDirectory(paths.openSessionMarker());
    EXPECT_TRUE(start());
    time.settle();
    EXPECT_TRUE(tracker.storageError().has_value());
    EXPECT_TRUE(tracker.stop().has_value());
    EXPECT_TRUE(disk.exists(paths.openSessionMarker()));
    EXPECT_EQ(tracker.allSessions().size(), 1u);
}

} // namespace
} // namespace vantle
