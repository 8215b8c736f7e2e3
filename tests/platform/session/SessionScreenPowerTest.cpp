#include "platform/session/SessionScreenPower.h"

#include "platform/session/FakeScreenSaver.h"
#include "support/Await.h"
#include "support/ToldPower.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::await;
using tests::BusClient;
using tests::FakeScreenSaver;
using tests::ToldPower;

class SessionScreenPowerTest : public testing::Test {
protected:
    /// Returns when what others have said on the bus so far has arrived.
    void catchUp() { tests::runFor(100); }

    FakeScreenSaver m_freedesktop{QStringLiteral("org.freedesktop.ScreenSaver"),
                                  QStringLiteral("/org/freedesktop/ScreenSaver")};
    FakeScreenSaver m_gnome{QStringLiteral("org.gnome.ScreenSaver"),
                            QStringLiteral("/org/gnome/ScreenSaver")};
    BusClient m_session;
};

TEST_F(SessionScreenPowerTest, EveryScreenSaverSleepsAndWakesOnce) {
    FakeScreenSaver mate{QStringLiteral("org.mate.ScreenSaver"),
                         QStringLiteral("/org/mate/ScreenSaver")};
    FakeScreenSaver cinnamon{QStringLiteral("org.cinnamon.ScreenSaver"),
                             QStringLiteral("/org/cinnamon/ScreenSaver")};
    FakeScreenSaver xfce{QStringLiteral("org.xfce.ScreenSaver"),
                         QStringLiteral("/org/xfce/ScreenSaver")};
    for (FakeScreenSaver* saver : {&m_freedesktop, &m_gnome, &mate, &cinnamon, &xfce}) {
        saver->appear();
        SessionScreenPower power(m_session.bus());
        ToldPower told(power);
        ASSERT_TRUE(await([&] { return saver->asked == 1; }));
        EXPECT_FALSE(power.asleep());
        saver->change(true);
        ASSERT_TRUE(await([&] { return power.asleep(); }));
        saver->change(false);
        ASSERT_TRUE(await([&] { return !power.asleep(); }));
        catchUp();
        EXPECT_EQ(told.slept, 1);
        EXPECT_EQ(told.woke, 1);
    }
}

TEST_F(SessionScreenPowerTest, SignalFromAnOlderPathCounts) {
    m_freedesktop.appear();
    SessionScreenPower power(m_session.bus());
    m_freedesktop.change(true, QStringLiteral("/ScreenSaver"));
    EXPECT_TRUE(await([&] { return power.asleep(); }));
}

TEST_F(SessionScreenPowerTest, SignalWithoutATruthValueDoesNotCount) {
    m_freedesktop.appear();
    SessionScreenPower power(m_session.bus());
    ASSERT_TRUE(await([&] { return m_freedesktop.asked == 1; }));
    for (const QVariant& value : {QVariant(1), QVariant(QStringLiteral("no"))})
        m_freedesktop.tell(value);
    catchUp();
    EXPECT_FALSE(power.asleep());
}

TEST_F(SessionScreenPowerTest, SignalOfAnotherSenderDoesNotCount) {
    m_freedesktop.appear();
    SessionScreenPower power(m_session.bus());
    auto signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/ScreenSaver"),
                                             QStringLiteral("org.freedesktop.ScreenSaver"),
                                             QStringLiteral("ActiveChanged"));
    signal << true;
    BusClient stranger;
    stranger.bus().send(signal);
    catchUp();
    EXPECT_FALSE(power.asleep());
}

TEST_F(SessionScreenPowerTest, ScreenSaverThatIsActiveAtTheStartIsToldOnce) {
    m_gnome.active = true;
    m_gnome.appear();
    SessionScreenPower power(m_session.bus());
    ToldPower told(power);
    EXPECT_TRUE(await([&] { return power.asleep(); }));
    catchUp();
    EXPECT_EQ(told.slept, 1);
    m_gnome.change(false);
    EXPECT_TRUE(await([&] { return told.woke == 1; }));
}

TEST_F(SessionScreenPowerTest, ScreenSaverThatComesLaterIsFollowed) {
    SessionScreenPower power(m_session.bus());
    ToldPower told(power);
    catchUp();
    m_freedesktop.appear();
    m_freedesktop.change(true);
    EXPECT_TRUE(await([&] { return power.asleep(); }));
}

TEST_F(SessionScreenPowerTest, ScreenSaverThatComesLaterAndActiveIsNoticed) {
    SessionScreenPower power(m_session.bus());
    catchUp();
    m_freedesktop.active = true;
    m_freedesktop.appear();
    EXPECT_TRUE(await([&] { return power.asleep(); }));
}

TEST_F(SessionScreenPowerTest, ScreenSaverThatDiesWakesTheScreens) {
    m_freedesktop.appear();
    SessionScreenPower power(m_session.bus());
    ToldPower told(power);
    m_freedesktop.change(true);
    ASSERT_TRUE(await([&] { return power.asleep(); }));
    m_freedesktop.disappear();
    EXPECT_TRUE(await([&] { return !power.asleep(); }));
    EXPECT_EQ(told.woke, 1);
}

TEST_F(SessionScreenPowerTest, ScreenSaverThatNeverAnswersHoldsNothingUp) {
    m_freedesktop.silent = true;
    m_freedesktop.appear();
    QElapsedTimer timer;
    timer.start();
    SessionScreenPower power(m_session.bus());
    EXPECT_LT(timer.elapsed(), 500);
    ASSERT_TRUE(await([&] { return m_freedesktop.asked == 1; }));
    m_freedesktop.change(true);
    EXPECT_TRUE(await([&] { return power.asleep(); }));
}

TEST_F(SessionScreenPowerTest, MissingBusNeverSleepsAndTakesNoTime) {
    QElapsedTimer timer;
    timer.start();
    const SessionScreenPower power(tests::noBus());
    EXPECT_LT(timer.elapsed(), 100);
    EXPECT_FALSE(power.asleep());
}

} // namespace
} // namespace vantle
