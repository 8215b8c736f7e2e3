// What everything that takes the combination promises.
#include "contract/Contract.h"
#include "fakes/FakeHotKeyPort.h"
#include "fakes/VirtualTime.h"
#include "platform/kde/FakeKGlobalAccel.h"
#include "platform/kde/KGlobalAccelHotKey.h"
#include "platform/session/FakeShortcutPortal.h"
#include "platform/session/PortalHotKey.h"
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
    /// Another program takes the combination, or gives it back. Has no effect where the port is not
    /// told.
    virtual void setHeldByAnother(bool /*held*/) {}
    /// The keyboard has the combination no more, or again.
    virtual void setOnKeyboard(bool present) = 0;
    /// Lets all arrive that is on its way.
    virtual void settle() {}
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

/// A service on the bus, which answers some events later.
class KdeWorld final : public HotKeyWorld {
public:
    KdeWorld() {
        m_desktop.appear();
        EXPECT_TRUE(tests::await([this] { return m_port.isOffered() == true; }));
    }
    [[nodiscard]] HotKeyPort& port() override { return m_port; }
    void press() override {
        m_desktop.press();
        settle();
    }
    void setHeldByAnother(bool held) override { m_desktop.setHeldByAnother(held); }
    void setOnKeyboard(bool present) override {
        m_desktop.choose(present ? tests::FakeKGlobalAccel::kAltSuperB : 0);
        settle();
    }
    void settle() override { tests::runFor(50); }

private:
    tests::FakeKGlobalAccel m_desktop;
    tests::BusClient m_session;
    fakes::VirtualTime m_time;
    KGlobalAccelHotKey m_port{m_session.bus(), m_time};
};

/// A portal whose user granted the keys in a former run.
class PortalWorld final : public HotKeyWorld {
public:
    PortalWorld() {
        m_desktop.asksNothing = true;
        m_desktop.appear();
        m_port.recallAllowed(m_port.wayToAllow());
        EXPECT_TRUE(tests::await([this] { return m_port.isOffered() == true; }));
    }
    [[nodiscard]] HotKeyPort& port() override { return m_port; }
    void press() override {
        m_desktop.press();
        settle();
    }
    void setOnKeyboard(bool present) override {
        m_desktop.change(present ? QStringLiteral("<Alt><Super>b") : QString());
        settle();
    }
    void settle() override { tests::runFor(50); }

private:
    tests::FakeShortcutPortal m_desktop;
    tests::BusClient m_session;
    fakes::VirtualTime m_time;
    PortalHotKey m_port{m_session.bus(), qgetenv("DBUS_SESSION_BUS_ADDRESS"), m_time};
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
    /// What the attempt comes to, be it told at once or later.
    [[nodiscard]] Registration take() {
        const Registration answer = world().port().registerKey().registration;
        if (answer != Registration::Waiting) return answer;
        if (!tests::await([this] { return !m_told.empty(); })) return answer;
        const Registration later = m_told.front().registration;
        m_told.erase(m_told.begin());
        return later;
    }

    int m_pressed = 0;
    std::vector<HotKeyPort::Outcome> m_told;
};

INSTANTIATE_TEST_SUITE_P(, HotKeyContract,
                         testing::Values(contract::maker<HotKeyWorld, FakeWorld>("Fake"),
                                         contract::maker<HotKeyWorld, X11World>("X11"),
                                         contract::maker<HotKeyWorld, KdeWorld>("KDE"),
                                         contract::maker<HotKeyWorld, PortalWorld>("Portal")),
                         contract::kByName);

/// Of the desktops that tell whose the keys are; a portal asks its user for others.
class SharedKeysContract : public HotKeyContract {};

INSTANTIATE_TEST_SUITE_P(, SharedKeysContract,
                         testing::Values(contract::maker<HotKeyWorld, FakeWorld>("Fake"),
                                         contract::maker<HotKeyWorld, X11World>("X11"),
                                         contract::maker<HotKeyWorld, KdeWorld>("KDE")),
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
    world().settle();
    world().press();
    EXPECT_EQ(m_pressed, 0);
    ASSERT_EQ(take(), Registration::Registered);
    world().press();
    EXPECT_EQ(m_pressed, 1);
    world().port().removeHandler();
    world().press();
    EXPECT_EQ(m_pressed, 1);
}

TEST_P(SharedKeysContract, CombinationOfAnotherProgramIsToldApartAndFreeLater) {
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
    EXPECT_NE(m_told[0].registration, Registration::Registered);
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
