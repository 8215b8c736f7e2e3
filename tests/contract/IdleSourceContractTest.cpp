// What everything that counts the time without input promises.
#include "contract/Contract.h"
#include "fakes/FakeIdleSource.h"
#include "fakes/SleptClock.h"
#include "fakes/VirtualTime.h"
#include "platform/gnome/FakeMutter.h"
#include "platform/gnome/MutterIdleSource.h"
#include "platform/wayland/FakeCompositor.h"
#include "platform/wayland/WaylandIdleSource.h"
#include "platform/x11/OwnServer.h"
#include "platform/x11/X11IdleSource.h"
#include "support/Await.h"

#include <utility>

namespace vantle {
namespace {

/// A counter, and a machine that it counts on.
class IdleWorld {
public:
    virtual ~IdleWorld() = default;
    [[nodiscard]] virtual IdleSource& source() = 0;
    virtual void touch() = 0;
    /// Lets time pass without input, and sleep without any.
    virtual void pass(double seconds) = 0;
    virtual void suspend(double seconds) = 0;
    /// Takes away what the counter is read from.
    virtual void lose() = 0;
    /// How far a reading may be off, in seconds: input takes its way, and so does the question.
    [[nodiscard]] virtual double slack() const { return 0.6; }
};

class FakeWorld final : public IdleWorld {
public:
    [[nodiscard]] IdleSource& source() override { return m_source; }
    void touch() override { m_source.touch(); }
    void pass(double seconds) override { m_time.advance(seconds); }
    void suspend(double seconds) override { m_time.suspend(seconds); }
    void lose() override { m_source.setCanTell(false); }

private:
    fakes::VirtualTime m_time;
    fakes::FakeIdleSource m_source{m_time};
};

class X11World final : public IdleWorld {
public:
    [[nodiscard]] IdleSource& source() override { return m_source; }
    void touch() override {
        const auto display = QString::fromLatin1(m_server.display());
        EXPECT_TRUE(tests::run(
            QStringLiteral("env DISPLAY=%1 xdotool mousemove_relative 3 3").arg(display)));
    }
    void pass(double seconds) override { tests::runFor(static_cast<int>(seconds * 1000)); }
    void suspend(double seconds) override { m_clock.slept += Seconds(seconds); }
    void lose() override { m_server.stop(); }

private:
    tests::OwnServer m_server;
    X11Connection m_connection{m_server.display()};
    fakes::SleptClock m_clock;
    X11IdleSource m_source{m_connection, m_clock};
};

/// A desktop that tells the first second without input, and the next input.
class EventWorld : public IdleWorld {
public:
    void touch() override {
        m_quiet = 0;
        tellInput();
    }
    void pass(double seconds) override {
        constexpr double kStep = 0.1;
        for (double passed = 0; passed < seconds - kStep / 2; passed += kStep) {
            m_time.advance(kStep);
            m_quiet += kStep;
            if (m_quiet > 1.0 - kStep / 2) tellSecond();
        }
    }
    void suspend(double seconds) override { m_time.suspend(seconds); }
    [[nodiscard]] double slack() const override { return 1.1; }

protected:
    virtual void tellInput() = 0;
    virtual void tellSecond() = 0;

    fakes::VirtualTime m_time;

private:
    double m_quiet = 0;
};

class WaylandWorld final : public EventWorld {
public:
    WaylandWorld() {
        m_compositor.offerSeat();
        m_compositor.offerIdleNotifier(2);
        m_compositor.settle();
    }
    [[nodiscard]] IdleSource& source() override { return m_source; }
    void lose() override {
        m_compositor.vanish();
        m_compositor.settle();
    }

private:
    void tellInput() override { m_compositor.touch(); }
    void tellSecond() override { m_compositor.second(); }

    tests::FakeCompositor m_compositor;
    WaylandConnection m_connection{m_compositor.takeSocket()};
    WaylandIdleSource m_source{m_connection, m_time};
};

class MutterWorld final : public EventWorld {
public:
    MutterWorld() {
        m_mutter.appear();
        EXPECT_TRUE(tests::await([this] { return m_source.canTell(); }));
    }
    [[nodiscard]] IdleSource& source() override { return m_source; }
    void lose() override { m_mutter.disappear(); }

private:
    void tellInput() override {
        m_mutter.touch();
        m_isIdle = false;
        tests::runFor(30);
    }
    void tellSecond() override {
        if (std::exchange(m_isIdle, true)) return;
        m_mutter.second();
        EXPECT_TRUE(tests::await([this] { return m_mutter.monitor.inputWatch != 0; }));
    }

    tests::FakeMutter m_mutter;
    tests::BusClient m_session;
    MutterIdleSource m_source{m_session.bus(), m_time};
    bool m_isIdle = false;
};

class IdleSourceContract : public contract::Contract<IdleWorld> {
protected:
    double idle() { return world().source().secondsSinceLastInput().value_or(-1); }
    [[nodiscard]] double slack() const { return world().slack(); }
};

INSTANTIATE_TEST_SUITE_P(, IdleSourceContract,
                         testing::Values(contract::maker<IdleWorld, FakeWorld>("Fake"),
                                         contract::maker<IdleWorld, X11World>("X11"),
                                         contract::maker<IdleWorld, WaylandWorld>("Wayland"),
                                         contract::maker<IdleWorld, MutterWorld>("Mutter")),
                         contract::kByName);

TEST_P(IdleSourceContract, GrowsWithTheTimeWithoutInputAndFallsWithInput) {
    world().touch();
    EXPECT_LT(idle(), slack());
    world().pass(1.0);
    EXPECT_NEAR(idle(), 1.0, slack());
    world().pass(0.5);
    EXPECT_NEAR(idle(), 1.5, slack());
    world().touch();
    EXPECT_LT(idle(), slack());
}

TEST_P(IdleSourceContract, CountsTheSleepOfTheMachine) {
    world().touch();
    world().pass(0.5);
    EXPECT_GE(idle(), 0.5 - slack());
    world().suspend(3600);
    EXPECT_NEAR(idle(), 3600.5, slack());
    world().pass(0.5);
    world().suspend(60);
    EXPECT_NEAR(idle(), 3661.0, slack());
    world().pass(1.0);
    EXPECT_GE(idle(), 3661.0);
    world().touch();
    EXPECT_LT(idle(), slack());
    world().pass(0.5);
    EXPECT_LT(idle(), 0.5 + slack()) << "what was slept before the input is over";
}

TEST_P(IdleSourceContract, IsNeverNegative) {
    for (int i = 0; i < 20; ++i) {
        world().touch();
        EXPECT_GE(idle(), 0.0);
    }
}

TEST_P(IdleSourceContract, IsEmptyOnceItCantTell) {
    EXPECT_GE(idle(), 0.0);
    EXPECT_TRUE(world().source().canTell());
    int changes = 0;
    QObject::connect(&world().source(), &IdleSource::canTellChanged, &world().source(),
                     [&] { ++changes; });
    world().lose();
    EXPECT_TRUE(tests::await([&] { return changes == 1; }));
    EXPECT_FALSE(world().source().canTell());
    EXPECT_EQ(world().source().secondsSinceLastInput(), std::nullopt);
    EXPECT_EQ(world().source().secondsSinceLastInput(), std::nullopt);
}

} // namespace
} // namespace vantle
