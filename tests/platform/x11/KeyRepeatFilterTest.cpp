#include "platform/x11/KeyRepeatFilter.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

constexpr std::uint8_t kKey = 56;

TEST(KeyRepeatFilter, HeldKeyIsOnePress) {
    KeyRepeatFilter filter;
    EXPECT_TRUE(filter.pressed(kKey, 1000));
    for (std::uint32_t time = 1660; time < 3000; time += 40) {
        filter.released(kKey, time);
        EXPECT_FALSE(filter.pressed(kKey, time));
    }
}

TEST(KeyRepeatFilter, RepetitionAcrossATickOfTheServersClockIsNoPress) {
    KeyRepeatFilter filter;
    (void)filter.pressed(kKey, 1000);
    filter.released(kKey, 1660);
    EXPECT_FALSE(filter.pressed(kKey, 1661));
}

TEST(KeyRepeatFilter, PressAfterTheKeyWasUpCounts) {
    KeyRepeatFilter filter;
    (void)filter.pressed(kKey, 1000);
    filter.released(kKey, 1080);
    EXPECT_TRUE(filter.pressed(kKey, 1082));
}

TEST(KeyRepeatFilter, FirstPressCountsWhateverTheServersTime) {
    EXPECT_TRUE(KeyRepeatFilter().pressed(0, 0));
}

TEST(KeyRepeatFilter, OtherKeysReleaseMakesNoRepetition) {
    KeyRepeatFilter filter;
    (void)filter.pressed(kKey, 1000);
    filter.released(kKey, 1080);
    EXPECT_TRUE(filter.pressed(kKey + 1, 1080));
}

TEST(KeyRepeatFilter, RepetitionIsKnownWhereTheServersTimeWraps) {
    KeyRepeatFilter filter;
    (void)filter.pressed(kKey, 0xfffffff0U);
    filter.released(kKey, 0xffffffffU);
    EXPECT_FALSE(filter.pressed(kKey, 0));
}

} // namespace
} // namespace vantle
