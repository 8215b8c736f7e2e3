#include "surfaces/kit/tokens/Spring.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vantle {
namespace {

constexpr Spring kCapsule{195.0, 22.3};
constexpr Spring kPop{380.0, 16.0};

/// The same spring, followed step by step: x'' = k (1 - x) - c x'.
double integrated(const Spring& spring, double seconds) {
    constexpr double kStep = 1e-5;
    double x = 0.0;
    double speed = 0.0;
    for (double t = 0.0; t < seconds; t += kStep) {
        speed += kStep * (spring.stiffness * (1.0 - x) - spring.damping * speed);
        x += kStep * speed;
    }
    return x;
}

TEST(Spring, StandsAtTheStartBeforeItIsLetGo) {
    EXPECT_EQ(kCapsule.progressAt(0.0), 0.0);
    EXPECT_EQ(kCapsule.progressAt(-1.0), 0.0);
}

TEST(Spring, MovesAsItsEquationSays) {
    // One that swings, one at the border, one that creeps.
    for (const Spring& spring : {kCapsule, kPop, Spring{100.0, 20.0}, Spring{100.0, 50.0}})
        for (const double t : {0.02, 0.1, 0.3, 0.7})
            EXPECT_NEAR(spring.progressAt(t), integrated(spring, t), 1e-3)
                << spring.stiffness << ' ' << spring.damping << " at " << t;
}

TEST(Spring, SwingsOverWhenItIsDampedLittle) {
    double highest = 0.0;
    for (double t = 0.0; t < 1.0; t += 0.001)
        highest = std::max(highest, kPop.progressAt(t));
    EXPECT_GT(highest, 1.1);
    EXPECT_LT(highest, 1.4);
}

TEST(Spring, IsAtRestFromItsSettlingTimeOn) {
    for (const Spring& spring : {kCapsule, kPop, Spring{100.0, 20.0}, Spring{100.0, 50.0}}) {
        const double end = spring.settlingTime(0.001);
        EXPECT_GT(end, 0.1);
        EXPECT_LT(end, 6.0);
        for (double t = end; t < end + 2.0; t += 0.01)
            EXPECT_NEAR(spring.progressAt(t), 1.0, 0.0011);
    }
}

} // namespace
} // namespace vantle
