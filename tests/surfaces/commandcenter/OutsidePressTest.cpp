#include "surfaces/commandcenter/OutsidePress.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

const Date kNow{Seconds(1000)};

TEST(OutsidePress, TheClickOfThePressThatClosedThePanelDoesNotOpenItAgain) {
    OutsidePress press;
    press.closedPanel({1000, 14}, kNow);
    EXPECT_TRUE(press.takeClick({1003, 12}, kNow + Seconds(5)));
    EXPECT_FALSE(press.takeClick({1003, 12}, kNow + Seconds(6))); // the next one does
}

TEST(OutsidePress, AClickSomewhereElseOpensIt) {
    OutsidePress press;
    press.closedPanel({400, 500}, kNow);
    EXPECT_FALSE(press.takeClick({1000, 14}, kNow + Seconds(0.1)));
}

TEST(OutsidePress, WithoutAPlaceTheTimeTells) {
    OutsidePress press;
    press.closedPanel({1000, 14}, kNow);
    EXPECT_TRUE(press.takeClick({}, kNow + Seconds(0.3)));
    press.closedPanel({1000, 14}, kNow);
    EXPECT_FALSE(press.takeClick({}, kNow + Seconds(0.7)));
}

TEST(OutsidePress, AnotherPressInBetweenForgetsTheFirst) {
    OutsidePress press;
    press.closedPanel({1000, 14}, kNow);
    press.nextPress();
    EXPECT_FALSE(press.takeClick({1000, 14}, kNow));
}

} // namespace
} // namespace vantle
