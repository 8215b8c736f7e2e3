#include "platform/wayland/WaylandIdleSource.h"

#include "fakes/VirtualTime.h"
#include "platform/wayland/FakeCompositor.h"

#include <gtest/gtest.h>

#include <memory>

namespace vantle {
namespace {

using tests::FakeCompositor;

/// How a compositor tells of idleness.
enum class Way { Kde, First, Second };

class WaylandIdleSourceTest : public testing::TestWithParam<Way> {
protected:
    WaylandIdleSourceTest() {
        m_seat = m_compositor.offerSeat();
        if (GetParam() == Way::Kde)
            m_offer = m_compositor.offerKdeIdle();
        else
            m_offer = m_compositor.offerIdleNotifier(GetParam() == Way::First ? 1 : 2);
        QObject::connect(&m_source, &IdleSource::canTellChanged, &m_source,
                         [this] { ++m_changes; });
        m_compositor.settle();
    }

    /// Seconds without an input.
    void pass(int seconds) {
        for (int i = 0; i < seconds; ++i) {
            m_time.advance(1.0);
            m_compositor.second();
        }
    }
    /// Seconds with inputs, half a second apart.
    void type(int seconds) {
        for (int i = 0; i < 2 * seconds; ++i) {
            m_compositor.touch();
            m_time.advance(0.5);
        }
    }
    std::optional<double> reading() {
        const auto seconds = m_source.secondsSinceLastInput();
        m_compositor.settle();
        return seconds;
    }

    FakeCompositor m_compositor;
    WaylandConnection m_connection{m_compositor.takeSocket()};
    fakes::VirtualTime m_time;
    WaylandIdleSource m_source{m_connection, m_time};
    int m_seat = 0, m_offer = 0, m_changes = 0;
};

constexpr auto kByWay = [](const auto& test) {
    return test.param == Way::Kde ? "Kde" : test.param == Way::First ? "First" : "Second";
};

INSTANTIATE_TEST_SUITE_P(, WaylandIdleSourceTest,
                         testing::Values(Way::Kde, Way::First, Way::Second), kByWay);

/// Where an inhibitor holds back what is told.
class HeldBackTest : public WaylandIdleSourceTest {};
INSTANTIATE_TEST_SUITE_P(, HeldBackTest, testing::Values(Way::Kde, Way::First), kByWay);

TEST_P(WaylandIdleSourceTest, CountsTheTimeSinceTheLastInput) {
    EXPECT_TRUE(m_source.canTell());
    type(3);
    EXPECT_NEAR(reading().value(), 0.0, 1.0);
    for (int tens = 1; tens <= 18; ++tens) {
        pass(10);
        EXPECT_NEAR(reading().value(), 10.0 * tens, 1.0);
    }
    m_compositor.touch();
    EXPECT_NEAR(reading().value(), 0.0, 1.0);
}

TEST_P(WaylandIdleSourceTest, ReadingsInQuickSuccessionAgree) {
    type(1);
    pass(20);
    for (int i = 0; i < 30; ++i) {
        EXPECT_NEAR(reading().value(), 20.0 + 0.1 * i, 1.0);
        m_time.advance(0.1);
        if (i % 10 == 9) m_compositor.second();
    }
}

TEST_P(WaylandIdleSourceTest, WhoTypesThroughAFilmIsNeverAway) {
    type(2);
    pass(3);
    m_compositor.inhibit(true); // what is idle stays so, whatever is typed
    for (int tens = 0; tens < 60; ++tens) {
        type(10);
        EXPECT_LT(reading().value_or(0), 20.0);
    }
    m_compositor.inhibit(false);
    pass(30);
    (void)reading();
    pass(10);
    ASSERT_TRUE(reading());
    EXPECT_LT(*reading(), 60.0) << "the film is not part of the absence";
}

TEST_P(HeldBackTest, AnInhibitorWithoutInputIsNeitherPresenceNorAbsence) {
    type(2);
    pass(3);
    m_compositor.inhibit(true);
    m_time.advance(10.0);
    (void)reading();
    for (int tens = 0; tens < 30; ++tens) {
        m_time.advance(10.0);
        EXPECT_EQ(reading(), std::nullopt);
    }
    m_compositor.inhibit(false);
    pass(2);
    type(2);
    pass(5);
    EXPECT_NEAR(reading().value(), 5.0, 1.0);
}

TEST_P(HeldBackTest, AFilmThatWakesWhatIsIdleIsNoticedAfterAMinute) {
    pass(30);
    m_compositor.inhibitAndResume();
    m_time.advance(61.0);
    EXPECT_EQ(reading(), std::nullopt);
    m_compositor.inhibit(false);
    pass(4);
    EXPECT_NEAR(reading().value(), 4.0, 1.5);
}

TEST_P(WaylandIdleSourceTest, BesideTheNotifierOfInputNothingElseIsAskedFor) {
    pass(30);
    (void)reading();
    pass(10);
    (void)reading();
    EXPECT_EQ(m_compositor.notifications(), GetParam() == Way::Second ? 1U : 2U);
    m_compositor.touch();
    EXPECT_EQ(m_compositor.notifications(), 1U) << "no probe while there is input";
}

TEST_P(WaylandIdleSourceTest, WithoutASeatOrAnOfferItCantTell) {
    m_compositor.withdraw(m_seat);
    m_compositor.settle();
    EXPECT_FALSE(m_source.canTell());
    EXPECT_EQ(reading(), std::nullopt);
    m_compositor.offerSeat();
    m_compositor.settle();
    EXPECT_TRUE(m_source.canTell());
    EXPECT_TRUE(reading());
    m_compositor.withdraw(m_offer);
    m_compositor.settle();
    EXPECT_FALSE(m_source.canTell());
    EXPECT_EQ(m_changes, 4) << "could, then each change";
}

TEST_P(WaylandIdleSourceTest, ACompositorThatVanishesTellsNothingMore) {
    pass(5);
    m_compositor.vanish();
    m_compositor.settle();
    EXPECT_FALSE(m_source.canTell());
    EXPECT_EQ(reading(), std::nullopt);
}

TEST(WaylandIdleSource, TheNotifierGoesBeforeTheOlderProtocol) {
    FakeCompositor compositor;
    compositor.offerKdeIdle();
    compositor.offerSeat();
    compositor.offerIdleNotifier(2);
    WaylandConnection connection(compositor.takeSocket());
    fakes::VirtualTime time;
    WaylandIdleSource source(connection, time);
    EXPECT_FALSE(source.canTell());
    compositor.settle();
    ASSERT_TRUE(source.canTell());
    compositor.second();
    compositor.inhibit(true);
    time.advance(5.0);
    compositor.touch();
    EXPECT_LT(source.secondsSinceLastInput().value(), 1.0) << "told whatever inhibits";
}

TEST(WaylandIdleSource, ASourceThatGoesTellsNothing) {
    FakeCompositor compositor;
    compositor.offerSeat();
    compositor.offerIdleNotifier(2);
    WaylandConnection connection(compositor.takeSocket());
    fakes::VirtualTime time;
    auto source = std::make_unique<WaylandIdleSource>(connection, time);
    compositor.settle();
    ASSERT_TRUE(source->canTell());
    int changes = 0;
    QObject::connect(source.get(), &IdleSource::canTellChanged, &connection, [&] { ++changes; });
    source.reset();
    EXPECT_EQ(changes, 0) << "who asks it then asks what is half gone";
}

TEST(WaylandIdleSource, ACompositorThatOffersNothingCantTell) {
    FakeCompositor compositor;
    WaylandConnection connection(compositor.takeSocket());
    fakes::VirtualTime time;
    WaylandIdleSource source(connection, time);
    compositor.settle();
    EXPECT_FALSE(source.canTell());
    EXPECT_EQ(source.secondsSinceLastInput(), std::nullopt);
}

} // namespace
} // namespace vantle
