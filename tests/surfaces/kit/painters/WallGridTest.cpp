#include "surfaces/kit/painters/WallGrid.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

const WallGrid kWall{32, 2, {532.0, 36.0}};

TEST(WallGrid, DotsTakeTheirPartOfTheSmallerSide) {
    EXPECT_DOUBLE_EQ(kWall.radius(), 0.36 * 532.0 / 32.0);
    EXPECT_DOUBLE_EQ((WallGrid{4, 2, {400.0, 36.0}}).radius(), 0.36 * 18.0);
}

TEST(WallGrid, FillsRowByRow) {
    EXPECT_EQ(kWall.cells(), 64);
    EXPECT_EQ(kWall.center(0), QPointF(8.3125, 9.0));
    EXPECT_EQ(kWall.center(31), QPointF(532.0 - 8.3125, 9.0));
    EXPECT_EQ(kWall.center(32), QPointF(8.3125, 27.0));
}

TEST(WallGrid, OuterDotsOfAFlushWallTouchItsSides) {
    const WallGrid flush{12, 1, {368.0, 28.0}, true};
    EXPECT_DOUBLE_EQ(flush.center(0).x(), flush.radius());
    EXPECT_DOUBLE_EQ(flush.center(11).x(), 368.0 - flush.radius());
    for (int i = 0; i < flush.cells(); ++i)
        EXPECT_EQ(flush.cellAt(flush.center(i)), i);
}

TEST(WallGrid, FindsTheCellOfEachCentre) {
    for (int i = 0; i < kWall.cells(); ++i)
        EXPECT_EQ(kWall.cellAt(kWall.center(i)), i);
}

TEST(WallGrid, ThereIsNoCellOutside) {
    EXPECT_EQ(kWall.cellAt({-0.1, 5.0}), -1);
    EXPECT_EQ(kWall.cellAt({5.0, 36.1}), -1);
    EXPECT_EQ(kWall.cellAt({532.0, 36.0}), 63) << "the far corner is the last cell's";
    EXPECT_EQ((WallGrid{32, 2, {0.0, 0.0}}).cellAt({0.0, 0.0}), -1);
}

} // namespace
} // namespace vantle
