#include "surfaces/cards/SavedTime.h"

#include "support/QtPrinters.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::text;

TEST(SavedTime, InWordsItCountsSecondsThenMinutesThenHours) {
    EXPECT_EQ(savedTime(1, DurationStyle::Natural), text("1 sec"));
    EXPECT_EQ(savedTime(59, DurationStyle::Natural), text("59 sec"));
    EXPECT_EQ(savedTime(60, DurationStyle::Natural), text("1 min"));
    EXPECT_EQ(savedTime(3599, DurationStyle::Natural), text("59 min"));
    EXPECT_EQ(savedTime(7200, DurationStyle::Natural), text("2 h"));
    EXPECT_EQ(savedTime(7260, DurationStyle::Natural), text("2 h 1 min"));
}

TEST(SavedTime, NothingAtAllReadsAsOneSecond) {
    EXPECT_EQ(savedTime(0, DurationStyle::Natural), text("1 sec"));
    EXPECT_EQ(savedTime(-5, DurationStyle::Natural), text("1 sec"));
    EXPECT_EQ(savedTime(0, DurationStyle::Clock), text("0:01"));
}

TEST(SavedTime, InHoursAndMinutesLessThanAMinuteIsNotRounded) {
    for (const auto style : {DurationStyle::HoursMinutes, DurationStyle::Minutes}) {
        EXPECT_EQ(savedTime(0, style), text("<1 min"));
        EXPECT_EQ(savedTime(59, style), text("<1 min"));
        EXPECT_EQ(savedTime(60, style), text("1 min"));
        EXPECT_EQ(savedTime(90, style), text("2 min"));
    }
    EXPECT_EQ(savedTime(5400, DurationStyle::HoursMinutes), text("1 h 30 min"));
    EXPECT_EQ(savedTime(5400, DurationStyle::Minutes), text("90 min"));
}

TEST(SavedTime, AsAClockItHasSecondsAndFromAnHourOnHours) {
    EXPECT_EQ(savedTime(65, DurationStyle::Clock), text("1:05"));
    EXPECT_EQ(savedTime(3661, DurationStyle::Clock), text("1:01:01"));
}

} // namespace
} // namespace vantle
