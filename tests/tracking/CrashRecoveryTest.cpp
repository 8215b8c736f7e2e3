#include "tracking/CrashRecovery.h"

#include "tracking/TrackingWorld.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using Operation = fakes::FaultyFileSystem::Operation;
using testing::ElementsAre;
using testing::IsEmpty;

OpenSessionMarker spanning(double seconds, std::int64_t active) {
    OpenSessionMarker marker = samples::marker();
    marker.lastSeenAt = marker.startedAt + Seconds(seconds);
    marker.activeSeconds = active;
    return marker;
}

TEST(RecoverableSeconds, AreCappedByTheDatesOfTheMarker) {
    EXPECT_EQ(recovery::recoverableSeconds(spanning(1800, 3000)), 1800);
    EXPECT_EQ(recovery::recoverableSeconds(spanning(1800, 1000)), 1000);
    EXPECT_EQ(recovery::recoverableSeconds(spanning(59.9, 100)), 59);
    EXPECT_EQ(recovery::recoverableSeconds(spanning(1800, -5)), 0);
    EXPECT_EQ(recovery::recoverableSeconds(spanning(-1800, 100)), 0);
}

TEST(RecoveryCandidate, NeedsAMinute) {
    EXPECT_FALSE(recovery::recoveryCandidate(spanning(1800, 59)));
    EXPECT_TRUE(recovery::recoveryCandidate(spanning(1800, 60)));
    EXPECT_FALSE(recovery::recoveryCandidate(spanning(59, 60)));
    EXPECT_TRUE(recovery::recoveryCandidate(spanning(60, 60)));
}

TEST(RecoveryCandidate, EndsWhenTheSessionWasLastSeenAlive) {
    const OpenSessionMarker marker = spanning(1800, 3000);
    const auto session = recovery::recoveryCandidate(marker);
    ASSERT_TRUE(session.has_value());
    EXPECT_EQ(*session, (Session{marker.id, marker.skillId, marker.startedAt, marker.lastSeenAt,
                                 1800, QString(), sourceApp()}));
    EXPECT_TRUE(isAcceptable(*session));
}

TEST(RecoveryCandidate, IsNotMadeOfAMarkerThatCannotBeTrue) {
    EXPECT_FALSE(recovery::isValid(spanning(-1, 100)));
    EXPECT_TRUE(recovery::isValid(spanning(604800, 100)));
    EXPECT_FALSE(recovery::isValid(spanning(604800.125, 100)));
    EXPECT_TRUE(recovery::isValid(spanning(604800, 604800)));
    EXPECT_FALSE(recovery::isValid(spanning(604800, 604801)));
    EXPECT_TRUE(recovery::isValid(spanning(100, -100)));
    OpenSessionMarker marker = samples::marker();
    marker.skillId.clear();
    EXPECT_FALSE(recovery::isValid(marker));
    EXPECT_FALSE(recovery::recoveryCandidate(marker));
    marker.skillId = QString(65, QLatin1Char('x'));
    EXPECT_FALSE(recovery::isValid(marker));
    marker.skillId.chop(1);
    EXPECT_TRUE(recovery::isValid(marker));
}

class RecoveryTest : public testing::Test, protected TrackingWorld {
protected:
    void leave(const OpenSessionMarker& left) { put(marker, json::encode(left).value()); }
    void expectSilentlyRemoved() {
        EXPECT_EQ(tracker.takeOrphanedMarker(), std::nullopt);
        EXPECT_EQ(content(marker), std::nullopt);
        EXPECT_EQ(tracker.storageError(), std::nullopt);
    }
};

TEST_F(RecoveryTest, WithoutAMarkerThereIsNothingToOffer) {
    EXPECT_EQ(tracker.takeOrphanedMarker(), std::nullopt);
    EXPECT_EQ(content(marker), std::nullopt);
}

TEST_F(RecoveryTest, AGoodMarkerIsOfferedAndStaysUntilTheUserHasChosen) {
    leave(samples::marker());
    EXPECT_EQ(tracker.takeOrphanedMarker(), samples::marker());
    EXPECT_TRUE(content(marker).has_value());
    EXPECT_EQ(tracker.takeOrphanedMarker(), samples::marker());
}

TEST_F(RecoveryTest, AMarkerOfLessThanAMinuteIsRemoved) {
    leave(spanning(1800, 59));
    expectSilentlyRemoved();
    leave(spanning(1800, -1));
    expectSilentlyRemoved();
}

TEST_F(RecoveryTest, ExactlySixtySecondsAreOffered) {
    leave(spanning(1800, 60));
    EXPECT_TRUE(tracker.takeOrphanedMarker().has_value());
}

TEST_F(RecoveryTest, AMarkerThatWasSeenBeforeItsStartIsRemoved) {
    leave(spanning(-1, 1000));
    expectSilentlyRemoved();
}

TEST_F(RecoveryTest, AMarkerOfMoreThanSevenDaysIsRemoved) {
    leave(spanning(604801, 1000));
    expectSilentlyRemoved();
}

TEST_F(RecoveryTest, ADamagedMarkerIsRemoved) {
    const QByteArray good = json::encode(samples::marker()).value();
    const QByteArray damaged[] = {QByteArray(),
                                  "garbage",
                                  good.chopped(1),
                                  good.left(20),
                                  QByteArray(200, '\0'),
                                  QByteArray(good).replace("1800", "\"1800\""),
                                  QByteArray(good).replace("building", "\xFF"),
                                  QByteArray(good).replace("30:00Z", "30:00.5Z"),
                                  QByteArray(good).replace("\"id\"", "\"ID\""),
                                  good + good,
                                  QByteArray(10 << 20, '[')};
    for (const QByteArray& bytes : damaged) {
        put(marker, bytes);
        expectSilentlyRemoved();
    }
}

TEST_F(RecoveryTest, AMarkerThatCannotBeReadStays) {
    leave(samples::marker());
    files.fail(Operation::Read, QStringLiteral("open-session.json"), EIO);
    EXPECT_EQ(tracker.takeOrphanedMarker(), std::nullopt);
    EXPECT_TRUE(content(marker).has_value());
}

TEST_F(RecoveryTest, ADirectoryInThePlaceOfTheMarkerIsNoOffer) {
    disk.setDirectory(paths.openSessionMarker());
    EXPECT_EQ(tracker.takeOrphanedMarker(), std::nullopt);
    EXPECT_TRUE(disk.exists(paths.openSessionMarker()));
}

TEST_F(RecoveryTest, KeepingLogsTheSessionAndRemovesTheMarker) {
    leave(samples::marker());
    const auto session = tracker.recoverSession(samples::marker());
    ASSERT_TRUE(session.has_value());
    EXPECT_THAT(tracker.allSessions(), ElementsAre(*session));
    EXPECT_EQ(content(marker), std::nullopt);
}

TEST_F(RecoveryTest, ASessionThatIsLoggedAlreadyIsNotLoggedAgain) {
    Session logged = samples::session(7);
    logged.note = QStringLiteral("logged before the crash");
    put(log, samples::line(logged));
    leave(samples::marker());
    EXPECT_EQ(tracker.recoverSession(samples::marker()), logged);
    EXPECT_EQ(content(log), samples::line(logged));
    EXPECT_EQ(content(marker), std::nullopt);
}

TEST_F(RecoveryTest, AFailedKeepKeepsMarkerAndOffer) {
    put(log, samples::line(samples::session()));
    leave(samples::marker());
    files.fail(Operation::Write, QStringLiteral("sessions.jsonl"), ENOSPC);
    EXPECT_EQ(tracker.recoverSession(samples::marker()), std::nullopt);
    EXPECT_TRUE(tracker.storageError().has_value());
    EXPECT_TRUE(content(marker).has_value());
    files.healAll();
    EXPECT_EQ(tracker.takeOrphanedMarker(), samples::marker());
    EXPECT_TRUE(tracker.recoverSession(samples::marker()).has_value());
}

TEST_F(RecoveryTest, AMarkerThatCannotBeRemovedIsOfferedAgainButNeverDoubled) {
    leave(samples::marker());
    files.fail(Operation::Remove, QStringLiteral("open-session.json"), EPERM);
    const auto first = tracker.recoverSession(samples::marker());
    EXPECT_TRUE(first.has_value());
    EXPECT_EQ(tracker.takeOrphanedMarker(), samples::marker());
    EXPECT_EQ(tracker.recoverSession(samples::marker()), first);
    EXPECT_EQ(tracker.allSessions().size(), 1u);
}

TEST_F(RecoveryTest, AMarkerThatIsWorthNothingCannotBeKept) {
    leave(spanning(1800, 59));
    EXPECT_EQ(tracker.recoverSession(spanning(1800, 59)), std::nullopt);
    EXPECT_THAT(tracker.allSessions(), IsEmpty());
    EXPECT_TRUE(content(marker).has_value());
}

TEST_F(RecoveryTest, DiscardingRemovesTheMarkerAndLogsNothing) {
    leave(samples::marker());
    tracker.discardRecovery(samples::marker());
    EXPECT_EQ(content(marker), std::nullopt);
    EXPECT_EQ(content(log), std::nullopt);
    tracker.discardRecovery(samples::marker());
}

TEST_F(RecoveryTest, TheMarkerOfASessionStartedDuringTheOfferComesBackWithinAMinute) {
    leave(samples::marker());
    const auto offered = tracker.takeOrphanedMarker();
    ASSERT_TRUE(offered.has_value());
    tracker.start(samples::skill(QStringLiteral("marketing")), 0);
    time.settle();
    const auto kept = tracker.recoverSession(*offered);
    ASSERT_TRUE(kept.has_value());
    EXPECT_EQ(kept->skillId, QStringLiteral("building"));
    EXPECT_EQ(content(marker), std::nullopt);
    time.advance(60);
    EXPECT_EQ(json::decodeMarker(content(marker).value())->skillId, QStringLiteral("marketing"));
    EXPECT_TRUE(tracker.stop().has_value());
    EXPECT_EQ(tracker.allSessions().size(), 2u);
}

} // namespace
} // namespace vantle
