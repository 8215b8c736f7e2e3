#include "surfaces/wrapped/AmbientDots.h"

#include "surfaces/wrapped/AmbientDotPainter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace vantle {
namespace {

using Looks = AmbientDots::Looks;

constexpr QSizeF kField(440, 660);

int changed(const Looks& now, const Looks& before) {
    int count = 0;
    for (std::size_t i = 0; i < now.size(); ++i)
        count += now[i] == before[i] ? 0 : 1;
    return count;
}

TEST(AmbientDots, StandOnWholeDevicePixels) {
    for (const double scale : {1.0, 1.5, 2.0})
        for (const auto& look : AmbientDots::looksAt(3.7, kField, scale)) {
            const QPointF pixels = look.corner * scale;
            EXPECT_NEAR(pixels.x(), std::round(pixels.x()), 1e-9);
            EXPECT_NEAR(pixels.y(), std::round(pixels.y()), 1e-9);
        }
}

TEST(AmbientDots, AreNeverDarkAndNeverBrighterThanTheirImage) {
    for (int step = 0; step < 200; ++step)
        for (const auto& look : AmbientDots::looksAt(step * 0.1, kField, 1)) {
            EXPECT_GT(look.light, 0);
            EXPECT_LE(look.light, AmbientDots::lightSteps);
        }
}

TEST(AmbientDots, KeepOutOfWhatIsRead) {
    const QList<QRectF> quiet = {{36, 64, 368, 14}, {32, 608, 376, 32}, {36, 560, 368, 1}};
    int near = 0;
    for (int step = 0; step < 400; ++step) {
        const Looks looks = AmbientDots::looksAt(step * 0.1, kField, 2, quiet);
        for (std::size_t i = 0; i < looks.size(); ++i) {
            const auto dot = wrappedmotion::ambientDot(static_cast<int>(i));
            const double reach = ambientdot::reach(dot);
            const QPointF middle = looks[i].corner + QPointF(reach, reach);
            const bool isNear = std::any_of(quiet.begin(), quiet.end(), [&](const QRectF& area) {
                return area.adjusted(-7, -7, 7, 7).contains(middle);
            });
            if (!isNear) continue;
            ++near;
            const QImage image = ambientdot::image(dot, 2);
            const double brightest =
                image.pixelColor(image.width() / 2, image.height() / 2).alphaF();
            EXPECT_LT(brightest * looks[i].light / AmbientDots::lightSteps, 0.06) << i;
        }
    }
    EXPECT_GT(near, 400) << "some dots are there";
}

TEST(AmbientDots, TintedOnesAreNeverFaint) {
    for (int step = 0; step < 200; ++step) {
        const Looks looks = AmbientDots::looksAt(step * 0.1, kField, 1);
        for (std::size_t i = 0; i < looks.size(); ++i) {
            if (wrappedmotion::ambientDot(static_cast<int>(i)).group ==
                wrappedmotion::AmbientDot::Group::White)
                continue;
            EXPECT_GE(looks[i].light, 0.6 * AmbientDots::lightSteps) << i;
        }
    }
}

TEST(AmbientDots, OnlyAFewChangeFromOneMomentToTheNext) {
    Looks before = AmbientDots::looksAt(0, kField, 1);
    double sum = 0;
    constexpr int kSteps = 200;
    for (int step = 1; step <= kSteps; ++step) {
        const Looks now = AmbientDots::looksAt(step * 0.1, kField, 1);
        sum += changed(now, before);
        before = now;
    }
    EXPECT_GT(sum / kSteps, 1) << "the field lives";
    EXPECT_LT(sum / kSteps, wrappedmotion::ambientDots / 2);
}

TEST(AmbientDots, SpreadOverTheWholeField) {
    int left = 0;
    int upper = 0;
    for (const auto& look : AmbientDots::looksAt(0, kField, 1)) {
        left += look.corner.x() < kField.width() / 2 ? 1 : 0;
        upper += look.corner.y() < kField.height() / 2 ? 1 : 0;
    }
    EXPECT_NEAR(left, wrappedmotion::ambientDots / 2, 4);
    EXPECT_NEAR(upper, wrappedmotion::ambientDots / 2, 4);
}

TEST(AmbientDots, ImageIsBrightestInItsMiddleAndClearAtItsEdge) {
    for (const int index : {0, 7, 9}) {
        const QImage image = ambientdot::image(wrappedmotion::ambientDot(index), 2);
        const QColor middle = image.pixelColor(image.width() / 2, image.height() / 2);
        EXPECT_GT(middle.alphaF(), 0.1);
        EXPECT_LT(middle.alphaF(), 0.5);
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    }
}

TEST(AmbientDots, StarCrossesInsideTheFieldAndFadesAtBothEnds) {
    int crossings = 0;
    for (int slot = 0; slot < 20; ++slot) {
        const double begin = slot * 8.0;
        const auto middle = ambientdot::star(begin + 0.55, kField);
        if (!middle) continue;
        ++crossings;
        EXPECT_TRUE(QRectF(QPointF(), kField).contains(middle->head)) << slot;
        EXPECT_NEAR(middle->light, 1, 0.01);
        EXPECT_LT(ambientdot::star(begin + 0.01, kField)->light, 0.1);
        EXPECT_LT(ambientdot::star(begin + 1.09, kField)->light, 0.1);
        EXPECT_FALSE(ambientdot::star(begin + 1.11, kField));
    }
    EXPECT_GT(crossings, 5);
    EXPECT_LT(crossings, 20);
}

} // namespace
} // namespace vantle
