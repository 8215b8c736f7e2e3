#include "platform/wayland/WaylandConnection.h"

#include "platform/wayland/FakeCompositor.h"
#include "support/EnvironmentVariable.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::EnvironmentVariable;
using tests::FakeCompositor;

class WaylandConnectionTest : public testing::Test {
protected:
    WaylandConnectionTest() {
        QObject::connect(&m_connection, &WaylandConnection::broken, &m_connection,
                         [this] { ++m_broken; });
    }
    FakeCompositor m_compositor;
    WaylandConnection m_connection{m_compositor.takeSocket()};
    int m_broken = 0;
};

TEST(WaylandConnection, WithoutACompositorThereIsNothing) {
    const EnvironmentVariable display("WAYLAND_DISPLAY", "no-such-compositor");
    testing::internal::CaptureStderr();
    WaylandConnection connection;
    EXPECT_FALSE(connection.isAlive());
    EXPECT_FALSE(connection.isReady());
    EXPECT_FALSE(connection.global("wl_seat"));
    connection.flush();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(WaylandConnectionTest, KnowsWhatIsOfferedAtFirstOnceItIsReady) {
    m_compositor.offerSeat();
    int told = 0;
    QObject::connect(&m_connection, &WaylandConnection::ready, &m_connection, [&] { ++told; });
    EXPECT_FALSE(m_connection.isReady()) << "nothing is waited for";
    m_compositor.settle();
    EXPECT_TRUE(m_connection.isReady());
    EXPECT_EQ(told, 1);
    ASSERT_TRUE(m_connection.global("wl_seat"));
    EXPECT_EQ(m_connection.global("wl_seat")->version, 5U);
}

TEST_F(WaylandConnectionTest, TellsWhatComesAndGoesLater) {
    m_compositor.settle();
    std::vector<QByteArray> added;
    std::vector<std::uint32_t> removed;
    QObject::connect(&m_connection, &WaylandConnection::added, &m_connection,
                     [&](const auto& global) { added.push_back(global.interface); });
    QObject::connect(&m_connection, &WaylandConnection::removed, &m_connection,
                     [&](auto name) { removed.push_back(name); });
    const int seat = m_compositor.offerSeat();
    m_compositor.settle();
    EXPECT_EQ(added, std::vector<QByteArray>{"wl_seat"});
    const auto name = m_connection.global("wl_seat")->name;
    m_compositor.withdraw(seat);
    m_compositor.settle();
    EXPECT_EQ(removed, std::vector{name});
    EXPECT_FALSE(m_connection.global("wl_seat"));
}

TEST_F(WaylandConnectionTest, CompositorThatVanishesIsToldOnce) {
    m_compositor.offerSeat();
    m_compositor.settle();
    m_compositor.vanish();
    m_compositor.settle();
    m_compositor.settle();
    EXPECT_EQ(m_broken, 1);
    EXPECT_FALSE(m_connection.isAlive());
    EXPECT_FALSE(m_connection.isReady());
    EXPECT_TRUE(m_connection.globals().empty());
    m_connection.flush();
}

TEST_F(WaylandConnectionTest, NonsenseEndsItInSilence) {
    m_compositor.settle();
    testing::internal::CaptureStderr();
    m_compositor.talkNonsense();
    m_compositor.settle();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(m_broken, 1);
    EXPECT_FALSE(m_connection.isAlive());
}

} // namespace
} // namespace vantle
