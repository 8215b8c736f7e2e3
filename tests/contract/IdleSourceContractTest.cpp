// What everything that counts the time without input promises.
#include "contract/Contract.h"
#include "fakes/FakeIdleSource.h"
#include "fakes/SleptClock.h"
#include "fakes/VirtualTime.h"
#include "platform/x11/OwnServer.h"
#include "platform/x11/X11IdleSource.h"
#include "support/Await.h"

#include <QElapsedTimer>

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

class IdleSourceContract : public contract::Contract<IdleWorld> {
protected:
    double idle() { return world().source().secondsSinceLastInput().value_or(-1); }

    /// How far a reading may be off: input takes its way, and so does the question.
    static constexpr double kSlack = 0.6;
};

INSTANTIATE_TEST_SUITE_P(, IdleSourceContract,
                         testing::Values(contract::maker<IdleWorld, FakeWorld>("Fake"),
                                         contract::maker<IdleWorld, X11World>("X11")),
                         contract::kByName);

TEST_P(IdleSourceContract, GrowsWithTheTimeWithoutInputAndFallsWithInput) {
    world().touch();
    EXPECT_LT(idle(), kSlack);
    world().pass(1.0);
    EXPECT_NEAR(idle(), 1.0, kSlack);
    world().pass(0.5);
    EXPECT_NEAR(idle(), 1.5, kSlack);
    world().touch();
    EXPECT_LT(idle(), kSlack);
}

TEST_P(IdleSourceContract, CountsTheSleepOfTheMachine) {
    world().touch();
    world().pass(0.5);
    EXPECT_GE(idle(), 0.4);
    world().suspend(3600);
    EXPECT_NEAR(idle(), 3600.5, kSlack);
    world().pass(0.5);
    world().suspend(60);
    EXPECT_NEAR(idle(), 3661.0, kSlack);
    world().pass(1.0);
    EXPECT_GE(idle(), 3661.0);
    world().touch();
    EXPECT_LT(idle(), kSlack);
    world().pass(0.5);
    EXPECT_LT(idle(), 0.5 + kSlack) << "what was slept before the input is over";
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
