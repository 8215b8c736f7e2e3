// What everything that tells of sleeping screens promises.
#include "contract/Contract.h"
#include "fakes/FakeScreenPower.h"
#include "fakes/VirtualTime.h"
#include "platform/gnome/FakeMutter.h"
#include "platform/gnome/MutterScreenPower.h"
#include "platform/session/FakeLoginManager.h"
#include "platform/session/FakeScreenSaver.h"
#include "platform/session/LoginScreenPower.h"
#include "platform/session/SessionScreenPower.h"
#include "platform/wayland/FakeCompositor.h"
#include "platform/wayland/WaylandOutputPower.h"
#include "platform/x11/OwnServer.h"
#include "platform/x11/X11ScreenPower.h"
#include "sensing/ScreenPowerUnion.h"
#include "support/Await.h"

namespace vantle {
namespace {

/// Screens, and the way in which they sleep and wake.
class PowerWorld {
public:
    virtual ~PowerWorld() = default;
    /// Makes the port, which starts to listen.
    [[nodiscard]] virtual ScreenPower& begin() = 0;
    /// Sends the screens to sleep, or says once more that they do. Wakes them likewise.
    virtual void sleep() = 0;
    virtual void wake() = 0;
    /// Lets pass what the port needs to notice.
    virtual void settle() = 0;
};

class FakeWorld final : public PowerWorld {
public:
    [[nodiscard]] ScreenPower& begin() override { return m_power; }
    void sleep() override { m_power.sleep(); }
    void wake() override { m_power.wake(); }
    void settle() override {}

private:
    fakes::FakeScreenPower m_power;
};

/// Two sources that sleep one after the other.
class UnionWorld final : public PowerWorld {
public:
    UnionWorld() {
        for (auto& source : m_sources)
            source = std::make_unique<fakes::FakeScreenPower>();
        for (std::size_t i = 0; i < m_sources.size(); ++i)
            m_told[i] = m_sources[i].get();
    }
    [[nodiscard]] ScreenPower& begin() override {
        std::vector<std::unique_ptr<ScreenPower>> given;
        for (auto& source : m_sources)
            given.push_back(std::move(source));
        m_power = std::make_unique<ScreenPowerUnion>(std::move(given));
        return *m_power;
    }
    void sleep() override {
        for (auto* source : m_told)
            source->tellSleep();
    }
    void wake() override {
        for (auto* source : m_told)
            source->tellWake();
    }
    void settle() override {}

private:
    std::array<std::unique_ptr<fakes::FakeScreenPower>, 2> m_sources;
    std::array<fakes::FakeScreenPower*, 2> m_told{};
    std::unique_ptr<ScreenPowerUnion> m_power;
};

class X11World : public PowerWorld {
public:
    [[nodiscard]] ScreenPower& begin() override {
        m_power = std::make_unique<X11ScreenPower>(m_connection, m_time,
                                                   [this] { return m_displaysAreOff; });
        return *m_power;
    }
    void settle() override {
        tests::catchUp(m_connection);
        m_time.advance(5);
    }

protected:
    void run(const QString& command) {
        const auto display = QString::fromLatin1(m_server.display());
        EXPECT_TRUE(tests::run(QStringLiteral("env DISPLAY=%1 %2").arg(display, command)));
    }
    void displaysOff(bool off) { m_displaysAreOff = off; }

private:
    tests::OwnServer m_server;
    X11Connection m_connection{m_server.display()};
    fakes::VirtualTime m_time;
    bool m_displaysAreOff = false;
    std::unique_ptr<X11ScreenPower> m_power;
};

class SaverWorld final : public X11World {
public:
    void sleep() override { run(QStringLiteral("xset s activate")); }
    void wake() override { run(QStringLiteral("xset s reset")); }
};

class DarkDisplayWorld final : public X11World {
public:
    void sleep() override { displaysOff(true); }
    void wake() override { displaysOff(false); }
};

class StatusWorld final : public X11World {
public:
    void sleep() override { say(QStringLiteral("76")); }
    void wake() override { say(QStringLiteral("0")); }

private:
    void say(const QString& state) {
        run(QStringLiteral("xprop -root -f _SCREENSAVER_STATUS 32i -set _SCREENSAVER_STATUS ") +
            state);
    }
};

class BusWorld : public PowerWorld {
public:
    void settle() override { tests::runFor(150); }
};

class SessionSaverWorld final : public BusWorld {
public:
    SessionSaverWorld() { m_saver.appear(); }
    [[nodiscard]] ScreenPower& begin() override {
        m_power = std::make_unique<SessionScreenPower>(m_client.bus());
        return *m_power;
    }
    void sleep() override { m_saver.change(true); }
    void wake() override { m_saver.change(false); }

private:
    tests::FakeScreenSaver m_saver{QStringLiteral("org.mate.ScreenSaver"),
                                   QStringLiteral("/org/mate/ScreenSaver")};
    tests::BusClient m_client;
    std::unique_ptr<SessionScreenPower> m_power;
};

class LoginLockWorld final : public BusWorld {
public:
    LoginLockWorld() { m_manager.appear(); }
    [[nodiscard]] ScreenPower& begin() override {
        m_power = std::make_unique<LoginScreenPower>(qgetenv("DBUS_SESSION_BUS_ADDRESS"),
                                                     QStringLiteral("2"));
        EXPECT_TRUE(tests::await([this] { return m_manager.inhibited == 1; }));
        return *m_power;
    }
    void sleep() override { m_manager.hintLocked(true); }
    void wake() override { m_manager.hintLocked(false); }

private:
    tests::FakeLoginManager m_manager;
    std::unique_ptr<LoginScreenPower> m_power;
};

class MutterWorld final : public BusWorld {
public:
    MutterWorld() { m_mutter.appear(); }
    [[nodiscard]] ScreenPower& begin() override {
        m_power = std::make_unique<MutterScreenPower>(m_client.bus());
        return *m_power;
    }
    void sleep() override { m_mutter.setPowerSaveMode(3); }
    void wake() override { m_mutter.setPowerSaveMode(0); }

private:
    tests::FakeMutter m_mutter;
    tests::BusClient m_client;
    std::unique_ptr<MutterScreenPower> m_power;
};

class WaylandWorld final : public PowerWorld {
public:
    [[nodiscard]] ScreenPower& begin() override {
        m_compositor.offerOutputPower();
        m_power = std::make_unique<WaylandOutputPower>(m_connection);
        return *m_power;
    }
    void sleep() override { m_compositor.power(m_output, false); }
    void wake() override { m_compositor.power(m_output, true); }
    void settle() override { m_compositor.settle(); }

private:
    tests::FakeCompositor m_compositor;
    const int m_output = m_compositor.offerOutput();
    WaylandConnection m_connection{m_compositor.takeSocket()};
    std::unique_ptr<WaylandOutputPower> m_power;
};

class ScreenPowerContract : public contract::Contract<PowerWorld> {
protected:
    ScreenPower& begin() {
        ScreenPower& power = world().begin();
        world().settle();
        QObject::connect(&power, &ScreenPower::slept, &power, [&] {
            EXPECT_TRUE(power.asleep()) << "asleep by the time that it is told";
            m_told << QStringLiteral("slept");
        });
        QObject::connect(&power, &ScreenPower::woke, &power, [&] {
            EXPECT_FALSE(power.asleep()) << "awake by the time that it is told";
            m_told << QStringLiteral("woke");
        });
        return power;
    }
    void sleep() {
        world().sleep();
        world().settle();
    }
    void wake() {
        world().wake();
        world().settle();
    }
    QStringList m_told;
};

INSTANTIATE_TEST_SUITE_P(
    , ScreenPowerContract,
    testing::Values(contract::maker<PowerWorld, FakeWorld>("Fake"),
                    contract::maker<PowerWorld, UnionWorld>("Union"),
                    contract::maker<PowerWorld, SaverWorld>("X11Saver"),
                    contract::maker<PowerWorld, DarkDisplayWorld>("X11DarkDisplay"),
                    contract::maker<PowerWorld, StatusWorld>("X11Status"),
                    contract::maker<PowerWorld, SessionSaverWorld>("SessionSaver"),
                    contract::maker<PowerWorld, LoginLockWorld>("LoginLock"),
                    contract::maker<PowerWorld, MutterWorld>("Mutter"),
                    contract::maker<PowerWorld, WaylandWorld>("Wayland")),
    contract::kByName);

TEST_P(ScreenPowerContract, ScreensAreAwakeUntilTheySleep) {
    const ScreenPower& power = begin();
    EXPECT_FALSE(power.asleep());
    EXPECT_TRUE(m_told.isEmpty());
}

TEST_P(ScreenPowerContract, EachSleepAndEachWakeIsToldOnce) {
    const ScreenPower& power = begin();
    QStringList expected;
    for (int night = 0; night < 3; ++night) {
        sleep();
        EXPECT_TRUE(power.asleep());
        wake();
        EXPECT_FALSE(power.asleep());
        expected << QStringLiteral("slept") << QStringLiteral("woke");
        EXPECT_EQ(m_told, expected);
    }
}

TEST_P(ScreenPowerContract, WhatHoldsAlreadyIsNotToldAgain) {
    begin();
    wake();
    EXPECT_TRUE(m_told.isEmpty());
    sleep();
    sleep();
    EXPECT_EQ(m_told, QStringList{QStringLiteral("slept")});
    wake();
    wake();
    EXPECT_EQ(m_told, (QStringList{QStringLiteral("slept"), QStringLiteral("woke")}));
}

TEST_P(ScreenPowerContract, ScreensThatSleptBeforeConstructionAreAsleep) {
    sleep();
    const ScreenPower& power = begin();
    EXPECT_TRUE(power.asleep());
    wake();
    EXPECT_FALSE(power.asleep());
    EXPECT_EQ(m_told, QStringList{QStringLiteral("woke")});
}

} // namespace
} // namespace vantle
