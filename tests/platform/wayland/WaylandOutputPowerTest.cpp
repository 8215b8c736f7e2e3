#include "platform/wayland/WaylandOutputPower.h"

#include "platform/wayland/FakeCompositor.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

class WaylandOutputPowerTest : public testing::Test {
protected:
    WaylandOutputPowerTest() { m_compositor.settle(); }

    tests::FakeCompositor m_compositor;
    int m_manager = m_compositor.offerOutputPower();
    int m_left = m_compositor.offerOutput();
    int m_right = m_compositor.offerOutput();
    WaylandConnection m_connection{m_compositor.takeSocket()};
    WaylandOutputPower m_power{m_connection};
};

TEST_F(WaylandOutputPowerTest, SleepsWhileEveryOutputIsOff) {
    m_compositor.power(m_left, false);
    EXPECT_FALSE(m_power.asleep());
    m_compositor.power(m_right, false);
    EXPECT_TRUE(m_power.asleep());
    m_compositor.power(m_left, true);
    EXPECT_FALSE(m_power.asleep());
}

TEST_F(WaylandOutputPowerTest, AnOutputThatIsPluggedInIsFollowedAndOneThatIsGoneCountsNoMore) {
    m_compositor.power(m_left, false);
    m_compositor.withdraw(m_right);
    m_compositor.settle();
    EXPECT_TRUE(m_power.asleep());
    m_compositor.offerOutput();
    m_compositor.settle();
    EXPECT_FALSE(m_power.asleep());
}

TEST_F(WaylandOutputPowerTest, AnOutputThatCantTellIsNoWord) {
    m_compositor.power(m_left, false);
    m_compositor.failPower(m_right);
    EXPECT_TRUE(m_power.asleep());
    m_compositor.failPower(m_left);
    EXPECT_FALSE(m_power.asleep()) << "none tells";
}

TEST_F(WaylandOutputPowerTest, WithoutTheProtocolOrTheCompositorNothingSleeps) {
    m_compositor.power(m_left, false);
    m_compositor.power(m_right, false);
    EXPECT_TRUE(m_power.asleep());
    m_compositor.withdraw(m_manager);
    m_compositor.settle();
    EXPECT_FALSE(m_power.asleep());
    m_compositor.offerOutputPower();
    m_compositor.settle();
    EXPECT_TRUE(m_power.asleep());
    m_compositor.vanish();
    m_compositor.settle();
    EXPECT_FALSE(m_power.asleep());
}

} // namespace
} // namespace vantle
