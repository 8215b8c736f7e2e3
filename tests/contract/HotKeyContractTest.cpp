// What everything that takes the combination promises.
#include "contract/Contract.h"
#include "fakes/FakeHotKeyPort.h"
#include "fakes/VirtualTime.h"
#include "platform/x11/OwnServer.h"
#include "platform/x11/X11HotKey.h"
#include "support/Await.h"

#include <optional>
#include <vector>

namespace vantle {
namespace {

using Registration = HotKeyPort::Registration;

/// A keyboard, and the program that wants the combination on it.
class HotKeyWorld {
public:
    virtual ~HotKeyWorld() = default;
    [[nodiscard]] virtual HotKeyPort& port() = 0;
    /// Presses the combination, and sees that the press arrives.
    virtual void press() = 0;
    /// Another program takes the combination, or gives it back.
    virtual void setHeldByAnother(bool held) = 0;
    /// The keyboard has the combination no more, or again.
    virtual void setOnKeyboard(bool present) = 0;
};

class FakeWorld final : public HotKeyWorld {
public:
    [[nodiscard]] HotKeyPort& port() override { return m_port; }
    void press() override { m_port.press(); }
    void setHeldByAnother(bool held) override {
        m_port.outcome = {held ? Registration::HeldByAnother : Registration::Registered, 0};
    }
    void setOnKeyboard(bool present) override {
        if (present)
            m_port.become({Registration::Registered, 0});
        else
            m_port.become({Registration::Failed, X11HotKey::kNoSuchKey});
    }

private:
    fakes::FakeHotKeyPort m_port;
};

class X11World final : public HotKeyWorld {
public:
    [[nodiscard]] HotKeyPort& port() override { return m_port; }
    void press() override { run("xdotool key alt+super+b"); }
    void setHeldByAnother(bool held) override {
        if (held)
            EXPECT_EQ(m_other.registerKey().registration, Registration::Registered);
        else
            m_other.unregisterKey();
        tests::catchUp(m_otherConnection);
    }
    void setOnKeyboard(bool present) override {
        run(present ? "xmodmap -e \"add mod4 = Super_L\"" : "xmodmap -e \"clear mod4\"");
    }

private:
    void run(const char* command) {
        const auto display = QString::fromLatin1(m_server.display());
        EXPECT_TRUE(tests::run(QStringLiteral("env DISPLAY=%1 ").arg(display) +
                               QString::fromUtf8(command)));
        tests::catchUp(m_connection);
        m_time.settle();
    }

    tests::OwnServer m_server;
    fakes::VirtualTime m_time;
    X11Connection m_connection{m_server.display()};
    X11Connection m_otherConnection{m_server.display()};
    X11HotKey m_port{m_connection, m_time};
    X11HotKey m_other{m_otherConnection, m_time};
};

class HotKeyContract : public contract::Contract<HotKeyWorld> {
protected:
    HotKeyContract() {
        world().port().onOutcomeChanged = [this](const auto& outcome) {
            m_told.push_back(outcome);
        };
    }
    void install() {
        ASSERT_EQ(world().port().installHandler([this] { ++m_pressed; }), 0);
    }
    [[nodiscard]] Registration take() { return world().port().registerKey().registration; }

    int m_pressed = 0;
    std::vector<HotKeyPort::Outcome> m_told;
};

INSTANTIATE_TEST_SUITE_P(, HotKeyContract,
                         testing::Values(contract::maker<HotKeyWorld, FakeWorld>("Fake"),
                                         contract::maker<HotKeyWorld, X11World>("X11")),
                         contract::kByName);

TEST_P(HotKeyContract, EachPressReachesTheHandlerOnce) {
    install();
    ASSERT_EQ(take(), Registration::Registered);
    world().press();
    EXPECT_EQ(m_pressed, 1);
    world().press();
    EXPECT_EQ(m_pressed, 2);
    EXPECT_TRUE(m_told.empty()) << "what the caller is told at once is told once";
}

TEST_P(HotKeyContract, NothingIsHeardBeforeNorAfter) {
    install();
    world().press();
    EXPECT_EQ(m_pressed, 0);
    ASSERT_EQ(take(), Registration::Registered);
    world().port().unregisterKey();
    world().press();
    EXPECT_EQ(m_pressed, 0);
    ASSERT_EQ(take(), Registration::Registered);
    world().press();
    EXPECT_EQ(m_pressed, 1);
    world().port().removeHandler();
    world().press();
    EXPECT_EQ(m_pressed, 1);
}

TEST_P(HotKeyContract, CombinationOfAnotherProgramIsToldApartAndFreeLater) {
    install();
    world().setHeldByAnother(true);
    EXPECT_EQ(take(), Registration::HeldByAnother);
    world().press();
    EXPECT_EQ(m_pressed, 0);
    world().setHeldByAnother(false);
    EXPECT_EQ(take(), Registration::Registered);
    world().press();
    EXPECT_EQ(m_pressed, 1);
}

TEST_P(HotKeyContract, LossAndReturnAreTold) {
    install();
    ASSERT_EQ(take(), Registration::Registered);
    world().setOnKeyboard(false);
    ASSERT_EQ(m_told.size(), 1U);
    EXPECT_EQ(m_told[0].registration, Registration::Failed);
    world().press();
    EXPECT_EQ(m_pressed, 0);
    world().setOnKeyboard(true);
    ASSERT_EQ(m_told.size(), 2U);
    EXPECT_EQ(m_told[1], (HotKeyPort::Outcome{Registration::Registered, 0}));
    world().press();
    EXPECT_EQ(m_pressed, 1);
}

TEST_P(HotKeyContract, CombinationThatWasGivenBackIsNotMissed) {
    install();
    ASSERT_EQ(take(), Registration::Registered);
    world().port().unregisterKey();
    world().setOnKeyboard(false);
    world().setOnKeyboard(true);
    EXPECT_TRUE(m_told.empty());
}

} // namespace
} // namespace vantle
