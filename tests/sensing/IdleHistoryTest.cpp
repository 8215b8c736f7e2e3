#include "sensing/IdleHistory.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace vantle {
namespace {

constexpr double kBegin = 1772359200.0;
constexpr double kThreshold = 180.0;

Date at(double seconds) { return dateFromEpoch(kBegin + seconds); }

IdleHistory historyOf(const std::vector<std::pair<double, double>>& readings) {
    IdleHistory history;
    for (const auto& [when, idle] : readings)
        history.add({at(when), idle});
    return history;
}

TEST(IdleHistory, SeesInputWhereTheCounterFellByMoreThanHalfASecond) {
    EXPECT_TRUE(showsInput({at(0), 10.0}, {at(10), 9.25}));
    EXPECT_FALSE(showsInput({at(0), 10.0}, {at(10), 9.5}));
    EXPECT_FALSE(showsInput({at(0), 10.0}, {at(10), 20.0}));
}

TEST(IdleHistory, CountsWholeMinutesBackToItsFirstReading) {
    EXPECT_EQ(IdleHistory().coverageMinutes(at(0)), 0);
    const IdleHistory history = historyOf({{0, 1}, {10, 1}});
    EXPECT_EQ(history.coverageMinutes(at(59.875)), 0);
    EXPECT_EQ(history.coverageMinutes(at(60)), 1);
    EXPECT_EQ(history.coverageMinutes(at(119.875)), 1);
}

TEST(IdleHistory, CoversNothingOfTheFuture) {
    const IdleHistory history = historyOf({{0, 1}});
    EXPECT_EQ(history.coverageMinutes(at(-3600)), 0);
}

TEST(IdleHistory, CoversNoMoreMinutesThanAnIntegerHolds) {
    const IdleHistory history = historyOf({{0, 1}});
    EXPECT_EQ(history.coverageMinutes(at(1e15)), std::numeric_limits<int>::max());
}

TEST(IdleHistory, KeepsAReadingThatIsExactlyFortyFiveMinutesOld) {
    IdleHistory history = historyOf({{0, 1}, {10, 1}, {2700, 1}});
    history.forgetOld(at(2700));
    EXPECT_EQ(history.size(), 3U);
    history.forgetOld(at(2700.125));
    EXPECT_EQ(history.size(), 2U);
}

TEST(IdleHistory, ForgetsOldReadingsAlsoBehindYoungerOnes) {
    IdleHistory history = historyOf({{5000, 1}, {0, 1}, {5010, 1}});
    history.forgetOld(at(5010));
    EXPECT_EQ(history.size(), 2U);
    EXPECT_EQ(history.last().date, at(5010));
}

TEST(IdleHistory, ShowsNothingWithoutAReadingAtOrBeforeTheCutoff) {
    const IdleHistory history = historyOf({{0, 1}, {10, 1}, {20, 1}});
    EXPECT_TRUE(history.showsPresenceSince(at(0), kThreshold));
    EXPECT_FALSE(history.showsPresenceSince(at(-0.125), kThreshold));
}

TEST(IdleHistory, ShowsNothingWithoutAReadingAfterTheCutoff) {
    const IdleHistory history = historyOf({{0, 1}, {10, 1}});
    EXPECT_TRUE(history.showsPresenceSince(at(10), kThreshold));
    EXPECT_FALSE(history.showsPresenceSince(at(10.125), kThreshold));
}

TEST(IdleHistory, ShowsAnAbsenceThatAReadingInTheWindowCaught) {
    const IdleHistory history = historyOf({{0, 1}, {10, 180}, {20, 190}});
    EXPECT_FALSE(history.showsPresenceSince(at(0), kThreshold));
    EXPECT_FALSE(history.showsPresenceSince(at(20), kThreshold));
    EXPECT_TRUE(history.showsPresenceSince(at(20), 190.125));
    EXPECT_FALSE(historyOf({{0, 1}, {10, 180}}).showsPresenceSince(at(0), kThreshold));
    EXPECT_TRUE(historyOf({{0, 1}, {10, 179.875}}).showsPresenceSince(at(0), kThreshold));
}

TEST(IdleHistory, ShowsAnAbsenceThatEndedBetweenTwoReadings) {
    EXPECT_FALSE(historyOf({{0, 170}, {10, 2}}).showsPresenceSince(at(0), kThreshold));
    EXPECT_TRUE(historyOf({{0, 169.875}, {10, 2}}).showsPresenceSince(at(0), kThreshold));
}

TEST(IdleHistory, LooksAtThePairAroundTheCutoffToo) {
    const IdleHistory history = historyOf({{0, 170}, {10, 2}, {20, 12}});
    EXPECT_FALSE(history.showsPresenceSince(at(5), kThreshold));
    EXPECT_FALSE(history.showsPresenceSince(at(15), kThreshold));
    EXPECT_TRUE(history.showsPresenceSince(at(15.125), kThreshold));
}

TEST(IdleHistory, ShowsNothingWhenTheClockRanBackward) {
    EXPECT_FALSE(
        historyOf({{0, 1}, {10, 1}, {9.875, 1}, {20, 1}}).showsPresenceSince(at(0), kThreshold));
}

/// A person who touches the machine at some moments, and the polls that go with it.
struct Person {
    std::vector<double> touches; ///< seconds, ascending, the first at 0
    double now = 0;

    [[nodiscard]] IdleHistory polledEveryTenSeconds() const {
        IdleHistory history;
        auto touch = touches.begin();
        for (double when = 0; when <= now; when += 10.0) {
            while (touch + 1 != touches.end() && *(touch + 1) <= when)
                ++touch;
            history.add({at(when), when - *touch});
        }
        return history;
    }

    /// The longest time without a touch that lasted beyond `cutoff`.
    [[nodiscard]] double longestAbsenceSince(double cutoff) const {
        double longest = now - touches.back();
        for (std::size_t i = 1; i < touches.size(); ++i)
            if (touches[i] > cutoff) longest = std::max(longest, touches[i] - touches[i - 1]);
        return longest;
    }
};

Person randomPerson(int longestAbsence) {
    Person person{{0.0}, 600.0};
    const auto eighths =
        *rc::gen::container<std::vector<int>>(20, rc::gen::inRange(1, longestAbsence * 8));
    for (std::size_t i = 0;; ++i) {
        const double when = person.touches.back() + eighths[i % eighths.size()] / 8.0;
        if (when >= person.now) break;
        person.touches.push_back(when);
    }
    return person;
}

RC_GTEST_PROP(IdleHistory, NeverShowsPresenceOverAnAbsence, ()) {
    const Person person = randomPerson(300);
    const double cutoff = *rc::gen::inRange(0, 4800) / 8.0;
    // The open end is for the current reading.
    const double last = person.now - person.touches.back();
    RC_PRE(last < kThreshold);
    const bool wasAway = person.longestAbsenceSince(cutoff) >= kThreshold;
    RC_CLASSIFY(wasAway);
    if (wasAway)
        RC_ASSERT(!person.polledEveryTenSeconds().showsPresenceSince(at(cutoff), kThreshold));
}

RC_GTEST_PROP(IdleHistory, ShowsPresenceOfAPersonWhoNeverPausesForLong, ()) {
    // Shorter than the threshold by one poll: an absence can't be told any finer.
    const Person person = randomPerson(static_cast<int>(kThreshold) - 10);
    const double cutoff = *rc::gen::inRange(0, 4800) / 8.0;
    RC_ASSERT(person.polledEveryTenSeconds().showsPresenceSince(at(cutoff), kThreshold));
}

} // namespace
} // namespace vantle
