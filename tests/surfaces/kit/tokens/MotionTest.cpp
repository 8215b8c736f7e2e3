#include "surfaces/kit/tokens/Motion.h"

#include <QQmlEngine>

#include <gtest/gtest.h>

namespace vantle {
namespace {

TEST(Motion, EachEngineHasOne) {
    QQmlEngine engine;
    QQmlEngine other;
    EXPECT_EQ(Motion::of(engine), Motion::of(engine));
    EXPECT_NE(Motion::of(engine), Motion::of(other));
}

TEST(Motion, ReducedMotionTakesNoTime) {
    QQmlEngine engine;
    Motion& motion = *Motion::of(engine);
    int told = 0;
    QObject::connect(&motion, &Motion::reducedChanged, &engine, [&told] { ++told; });
    EXPECT_EQ(motion.pace(), 1);
    EXPECT_EQ(motion.time(120), 120);
    motion.setReduced(true);
    motion.setReduced(true);
    EXPECT_EQ(motion.pace(), 0);
    EXPECT_EQ(motion.time(120), 0);
    EXPECT_EQ(told, 1);
}

TEST(Motion, ASpringIsThereWhenItsTimeIsOver) {
    EXPECT_NEAR(Motion::springAt(195.0, 22.3, Motion::springTime(195.0, 22.3)), 1.0, 0.001);
    EXPECT_NEAR(Motion::springAt(195.0, 22.3, 0.0), 0.0, 1e-12);
}

} // namespace
} // namespace vantle
