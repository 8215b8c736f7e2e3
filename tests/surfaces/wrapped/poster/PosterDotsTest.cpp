#include "surfaces/wrapped/poster/PosterDots.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

const QRectF kArea(0, 0, 422, 150);

TEST(PosterDots, FadeFromTheUpperRightCorner) {
    const auto dots = posterdots::field(kArea);
    ASSERT_GT(dots.size(), 50U);
    EXPECT_LT(kArea.right() - dots.front().center.x(), posterdots::kRadius) << "cut by the edge";
    for (std::size_t i = 1; i < dots.size(); ++i) {
        const auto& dot = dots[i];
        EXPECT_GT(dot.opacity, 0);
        EXPECT_LT(dot.opacity, dots.front().opacity);
        EXPECT_TRUE(kArea.contains(dot.center));
        if (dot.center.y() == dots[i - 1].center.y()) {
            EXPECT_EQ(dots[i - 1].center.x() - dot.center.x(), posterdots::kPitch);
            EXPECT_LT(dot.opacity, dots[i - 1].opacity);
        }
    }
}

TEST(PosterDots, KeepClearOfTheWordmark) {
    for (const auto& dot : posterdots::field(kArea))
        if (dot.center.y() > 36 && dot.center.y() < 80) {
            EXPECT_GT(dot.center.x(), 190);
        }
}

} // namespace
} // namespace vantle
