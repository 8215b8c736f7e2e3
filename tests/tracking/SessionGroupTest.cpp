#include "tracking/SessionGroup.h"

#include "tracking/Samples.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

/// A session of ten minutes that starts so many seconds after `previous` ended.
Session after(const Session& previous, double gap, int number) {
    Session next = previous;
    next.id = samples::id(number);
    next.startedAt = previous.endedAt + Seconds(gap);
    next.endedAt = next.startedAt + Seconds(600);
    next.activeSeconds = 600;
    return next;
}

const Session kFirst = samples::session(1);

TEST(SessionGroup, NoSessionsGiveNoGroups) { EXPECT_TRUE(SessionGroup::grouped({}).empty()); }

TEST(SessionGroup, SessionsWithinThreeMinutesAreOneRow) {
    const Session second = after(kFirst, 179, 2);
    const auto groups = SessionGroup::grouped({kFirst, second});
    ASSERT_EQ(groups.size(), 1u);
    EXPECT_EQ(groups[0].id, kFirst.id);
    EXPECT_EQ(groups[0].seconds, 2400);
    EXPECT_EQ(groups[0].endedAt, second.endedAt);
    EXPECT_EQ(groups[0].skillId, kFirst.skillId);
}

TEST(SessionGroup, AGapOfThreeMinutesSeparates) {
    EXPECT_EQ(SessionGroup::grouped({kFirst, after(kFirst, 179.875, 2)}).size(), 1u);
    EXPECT_EQ(SessionGroup::grouped({kFirst, after(kFirst, 180, 2)}).size(), 2u);
    EXPECT_EQ(SessionGroup::grouped({kFirst, after(kFirst, 0, 2)}).size(), 1u);
}

TEST(SessionGroup, AStartBeforeTheLastEndSeparates) {
    EXPECT_EQ(SessionGroup::grouped({kFirst, after(kFirst, -0.125, 2)}).size(), 2u);
}

TEST(SessionGroup, TheGapIsMeasuredFromTheSessionBefore) {
    const Session second = after(kFirst, 100, 2);
    const Session third = after(second, 100, 3);
    EXPECT_EQ(SessionGroup::grouped({kFirst, second, third}).size(), 1u);
}

TEST(SessionGroup, AnotherSkillBetweenEndsTheMerging) {
    Session other = after(kFirst, 10, 2);
    other.skillId = QStringLiteral("marketing");
    const Session third = after(other, 10, 3);
    Session back = third;
    back.skillId = kFirst.skillId;
    EXPECT_EQ(SessionGroup::grouped({kFirst, other, back}).size(), 3u);
}

TEST(SessionGroup, IsManualOnlyWhenAllOfItIs) {
    Session byHand = after(kFirst, 10, 2);
    byHand.source = sourceManual();
    EXPECT_FALSE(SessionGroup::grouped({kFirst, byHand})[0].allManual);
    EXPECT_TRUE(SessionGroup::grouped({byHand})[0].allManual);
    const Session tracked = after(byHand, 10, 3);
    Session last = tracked;
    last.source = sourceApp();
    EXPECT_FALSE(SessionGroup::grouped({byHand, last})[0].allManual);
}

} // namespace
} // namespace vantle
