#include "platform/gnome/MutterIdleSource.h"

#include "fakes/VirtualTime.h"
#include "platform/gnome/FakeMutter.h"
#include "support/Await.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::await;

class MutterIdleSourceTest : public testing::Test {
protected:
    [[nodiscard]] bool meet() {
        m_mutter.appear();
        return await([this] { return m_source.canTell(); });
    }
    [[nodiscard]] bool goIdle() {
        m_time.advance(1.0);
        m_mutter.second();
        return await([this] { return m_mutter.monitor.inputWatch != 0; });
    }
    double idle() { return m_source.secondsSinceLastInput().value_or(-1); }

    tests::FakeMutter m_mutter;
    tests::BusClient m_session;
    fakes::VirtualTime m_time;
    MutterIdleSource m_source{m_session.bus(), m_time};
};

TEST_F(MutterIdleSourceTest, CountsTheTimeSinceTheLastInput) {
    ASSERT_TRUE(meet());
    EXPECT_NEAR(idle(), 0, 1.0);
    ASSERT_TRUE(goIdle());
    m_time.advance(299.0);
    EXPECT_NEAR(idle(), 300.0, 1.0);
    m_mutter.touch();
    EXPECT_TRUE(await([this] { return idle() < 1.0; }));
    ASSERT_TRUE(goIdle()) << "the shell tells each first second";
    m_time.advance(9.0);
    EXPECT_NEAR(idle(), 10.0, 1.0);
}

TEST_F(MutterIdleSourceTest, AnInputBeforeItWasWatchedForIsNotMissed) {
    ASSERT_TRUE(meet());
    m_mutter.monitor.idleTime = 200;
    ASSERT_TRUE(goIdle());
    m_time.advance(30.0);
    EXPECT_TRUE(await([this] { return idle() < 1.0; }));
}

TEST_F(MutterIdleSourceTest, WatchesOfOthersSayNothing) {
    ASSERT_TRUE(meet());
    ASSERT_TRUE(goIdle());
    m_time.advance(60.0);
    m_mutter.fire(4711);
    tests::runFor(100);
    EXPECT_GT(idle(), 59.0);
}

TEST_F(MutterIdleSourceTest, AShellThatComesLaterGoesAndComesBackIsFollowed) {
    tests::runFor(50);
    EXPECT_FALSE(m_source.canTell());
    EXPECT_EQ(m_source.secondsSinceLastInput(), std::nullopt);
    int changes = 0;
    QObject::connect(&m_source, &IdleSource::canTellChanged, &m_source, [&] { ++changes; });
    ASSERT_TRUE(meet());
    m_mutter.disappear();
    EXPECT_TRUE(await([this] { return !m_source.canTell(); }));
    EXPECT_EQ(m_source.secondsSinceLastInput(), std::nullopt);
    tests::FakeMutter again;
    again.appear();
    EXPECT_TRUE(await([this] { return m_source.canTell(); }));
    EXPECT_EQ(changes, 3);
}

TEST(MutterIdleSource, WithoutABusItCantTell) {
    fakes::VirtualTime time;
    MutterIdleSource source(tests::noBus(), time);
    EXPECT_FALSE(source.canTell());
    EXPECT_EQ(source.secondsSinceLastInput(), std::nullopt);
}

} // namespace
} // namespace vantle
