#include "platform/session/LoginScreenPower.h"

#include "platform/session/FakeLoginManager.h"
#include "platform/session/MuteBus.h"
#include "support/Await.h"

#include <QDBusMetaType>
#include <QElapsedTimer>
#include <QMap>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::await;
using tests::FakeLoginManager;

const QString kOther = QStringLiteral("/org/freedesktop/login1/session/c1");

class LoginScreenPowerTest : public testing::Test {
protected:
    /// Connects, and returns when the manager has been asked all that it is asked.
    std::unique_ptr<LoginScreenPower> met(const QString& sessionId = QStringLiteral("2")) {
        auto power = make(sessionId);
        EXPECT_TRUE(await([&] { return m_manager.inhibited == 1; }));
        catchUp();
        return power;
    }
    std::unique_ptr<LoginScreenPower> make(const QString& sessionId = QStringLiteral("2")) {
        auto power =
            std::make_unique<LoginScreenPower>(qgetenv("DBUS_SESSION_BUS_ADDRESS"), sessionId);
        QObject::connect(power.get(), &ScreenPower::slept, [this] {
            ++m_slept;
            m_inhibitedInSlept = m_manager.isInhibited();
        });
        QObject::connect(power.get(), &ScreenPower::woke, [this] { ++m_woke; });
        return power;
    }
    /// Returns when what others have said on the bus so far has arrived.
    void catchUp() { tests::runFor(100); }

    FakeLoginManager m_manager;
    int m_slept = 0;
    int m_woke = 0;
    bool m_inhibitedInSlept = false;
};

TEST_F(LoginScreenPowerTest, SuspendedMachineSleepsUntilItIsBack) {
    m_manager.appear();
    const auto power = met();
    m_manager.prepareForSleep(true);
    ASSERT_TRUE(await([&] { return power->asleep(); }));
    m_manager.prepareForSleep(false);
    ASSERT_TRUE(await([&] { return !power->asleep(); }));
    EXPECT_EQ(m_slept, 1);
    EXPECT_EQ(m_woke, 1);
}

TEST_F(LoginScreenPowerTest, MachineWaitsForTheListenersBeforeEachSleep) {
    m_manager.appear();
    const auto power = met();
    for (int night = 1; night <= 2; ++night) {
        ASSERT_TRUE(await([&] { return m_manager.isInhibited(); }));
        EXPECT_EQ(m_manager.asked[0], QStringLiteral("sleep"));
        EXPECT_EQ(m_manager.asked[3], QStringLiteral("delay"));
        m_inhibitedInSlept = false;
        m_manager.prepareForSleep(true);
        ASSERT_TRUE(await([&] { return m_slept == night; }));
        EXPECT_TRUE(m_inhibitedInSlept);
        EXPECT_TRUE(await([&] { return !m_manager.isInhibited(); })) << "then it may sleep";
        m_manager.prepareForSleep(false);
        ASSERT_TRUE(await([&] { return m_manager.inhibited == night + 1; }));
    }
}

TEST_F(LoginScreenPowerTest, LockOfTheOwnSessionIsASleep) {
    m_manager.appear();
    const auto power = met();
    m_manager.signalLock(true, kOther);
    m_manager.hintLocked(true, kOther);
    catchUp();
    EXPECT_FALSE(power->asleep()) << "that is another user's";
    m_manager.signalLock(true);
    ASSERT_TRUE(await([&] { return power->asleep(); }));
    m_manager.hintLocked(true);
    m_manager.signalLock(false, kOther);
    catchUp();
    EXPECT_TRUE(power->asleep());
    m_manager.signalLock(false);
    ASSERT_TRUE(await([&] { return !power->asleep(); }));
    m_manager.hintLocked(false);
    catchUp();
    EXPECT_EQ(m_slept, 1);
    EXPECT_EQ(m_woke, 1);
}

TEST_F(LoginScreenPowerTest, HintThatGoesEndsTheLockThatASignalBegan) {
    m_manager.appear();
    const auto power = met();
    m_manager.signalLock(true);
    m_manager.hintLocked(true);
    ASSERT_TRUE(await([&] { return power->asleep(); }));
    m_manager.hintLocked(false);
    EXPECT_TRUE(await([&] { return !power->asleep(); }));
    EXPECT_EQ(m_slept, 1);
}

TEST_F(LoginScreenPowerTest, SignalsOfOtherTypesDoNotCount) {
    qDBusRegisterMetaType<QMap<QString, QString>>();
    m_manager.appear();
    const auto power = met();
    m_manager.prepareForSleep(QStringLiteral("soon"));
    m_manager.tellProperties(QVariantMap{{QStringLiteral("LockedHint"), 1}});
    for (const QVariant& changed :
         {QVariant::fromValue(QList<int>{1, 2, 3}),
          QVariant::fromValue(tests::FakeDisplay{QStringLiteral("2"), QDBusObjectPath(kOther)}),
          QVariant::fromValue(QMap<QString, QString>{{kOther, kOther}}), QVariant(1)})
        m_manager.tellProperties(changed);
    catchUp();
    EXPECT_FALSE(power->asleep());
    m_manager.signalLock(true);
    EXPECT_TRUE(await([&] { return power->asleep(); })) << "and what is right still does";
}

TEST_F(LoginScreenPowerTest, SessionThatIsLockedAtTheStartIsNoticed) {
    m_manager.session.locked = true;
    m_manager.appear();
    const auto power = make();
    EXPECT_TRUE(await([&] { return power->asleep(); }));
}

TEST_F(LoginScreenPowerTest, SessionOnTheScreenIsFollowedWhereTheEnvironmentNamesNoneOrAWrongOne) {
    m_manager.session.locked = true;
    m_manager.appear();
    for (const QString& id : {QString(), QStringLiteral("gone")}) {
        const auto power = make(id);
        EXPECT_TRUE(await([&] { return power->asleep(); })) << qPrintable(id);
    }
}

TEST_F(LoginScreenPowerTest, ManagerThatDiesLocksNothingAndOneThatComesIsFollowed) {
    const auto power = make();
    catchUp();
    m_manager.appear();
    ASSERT_TRUE(await([&] { return m_manager.isInhibited(); }));
    catchUp();
    m_manager.hintLocked(true);
    ASSERT_TRUE(await([&] { return power->asleep(); }));
    m_manager.disappear();
    EXPECT_TRUE(await([&] { return !power->asleep(); }));
    EXPECT_FALSE(m_manager.isInhibited());
}

TEST_F(LoginScreenPowerTest, ManagerThatNeverAnswersIsStillHeard) {
    m_manager.silent = true;
    m_manager.appear();
    const auto power = met();
    m_manager.prepareForSleep(true);
    EXPECT_TRUE(await([&] { return power->asleep(); }));
}

TEST(LoginScreenPower, BusThatNeverAnswersHoldsNothingUp) {
    const tests::MuteBus bus;
    QElapsedTimer timer;
    timer.start();
    {
        const LoginScreenPower power(bus.address(), QStringLiteral("2"));
        tests::runFor(300);
        EXPECT_FALSE(power.asleep());
        EXPECT_TRUE(bus.hasCaller());
    }
    EXPECT_LT(timer.elapsed(), 1500);
}

TEST(LoginScreenPower, MissingBusNeverSleepsAndTakesNoTime) {
    QElapsedTimer timer;
    timer.start();
    for (const char* address :
         {"", "disabled:", "unix:path=/nowhere", "tcp:host=localhost,port=1"}) {
        const LoginScreenPower power(address, QString());
        EXPECT_FALSE(power.asleep());
    }
    EXPECT_LT(timer.elapsed(), 500);
}

TEST(BusGreeting, TellsABusThatAnswersFromOneThatDoesNot) {
    BusGreeting there(qgetenv("DBUS_SESSION_BUS_ADDRESS"));
    EXPECT_EQ(there.waitForAnswer(5000), BusGreeting::Answer::Answers);
    const tests::MuteBus bus;
    BusGreeting mute(bus.address());
    EXPECT_EQ(mute.waitForAnswer(50), BusGreeting::Answer::Waiting);
    EXPECT_EQ(BusGreeting("unix:path=/nowhere").waitForAnswer(50), BusGreeting::Answer::Absent);
    EXPECT_EQ(BusGreeting("tcp:host=h").waitForAnswer(50), BusGreeting::Answer::Unknown);
    EXPECT_EQ(BusGreeting("tcp:host=h;" + qgetenv("DBUS_SESSION_BUS_ADDRESS")).waitForAnswer(5000),
              BusGreeting::Answer::Answers);
}

} // namespace
} // namespace vantle
