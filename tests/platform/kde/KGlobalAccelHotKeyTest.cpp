#include "platform/kde/KGlobalAccelHotKey.h"

#include "fakes/VirtualTime.h"
#include "platform/kde/FakeKGlobalAccel.h"
#include "support/Await.h"

#include <gtest/gtest.h>

#include <memory>

namespace vantle {
namespace {

using Registration = HotKeyPort::Registration;
using tests::await;
using tests::FakeKGlobalAccel;

class KGlobalAccelHotKeyTest : public testing::Test {
protected:
    KGlobalAccelHotKeyTest() { make(); }
    void make() {
        m_key = std::make_unique<KGlobalAccelHotKey>(m_session.bus(), m_time);
        m_key->onOutcomeChanged = [this](const auto& outcome) { m_outcome = outcome; };
    }
    void appear() {
        m_desktop.appear();
        ASSERT_TRUE(await([this] { return m_key->isOffered() == true; }));
    }
    [[nodiscard]] bool comesTo(Registration registration, const QString& keys = {}) {
        return await([&] {
            return m_outcome == HotKeyPort::Outcome{registration, m_outcome.status, keys};
        });
    }
    [[nodiscard]] bool take(Registration registration, const QString& keys = {}) {
        m_outcome = {Registration::Waiting};
        EXPECT_EQ(m_key->installHandler([this] { ++m_pressed; }), 0);
        EXPECT_EQ(m_key->registerKey().registration, Registration::Waiting);
        return comesTo(registration, keys);
    }

    FakeKGlobalAccel m_desktop;
    tests::BusClient m_session;
    fakes::VirtualTime m_time;
    std::unique_ptr<KGlobalAccelHotKey> m_key;
    HotKeyPort::Outcome m_outcome;
    int m_pressed = 0;
};

TEST_F(KGlobalAccelHotKeyTest, TakesTheCombinationAndHearsPresses) {
    appear();
    ASSERT_TRUE(take(Registration::Registered));
    EXPECT_TRUE(m_desktop.isHeld());
    EXPECT_EQ(m_desktop.ours().id.value(2), QStringLiteral("Vantle"));
    EXPECT_EQ(m_desktop.ours().defaults.value(0).chords.value(0), FakeKGlobalAccel::kAltSuperB);
    m_desktop.press();
    EXPECT_TRUE(await([this] { return m_pressed == 1; }));
    m_desktop.press();
    EXPECT_TRUE(await([this] { return m_pressed == 2; }));
}

TEST_F(KGlobalAccelHotKeyTest, KeyThatIsHeldDownIsOnePress) {
    appear();
    ASSERT_TRUE(take(Registration::Registered));
    m_desktop.press(50);
    m_desktop.press(50);
    EXPECT_TRUE(await([this] { return m_pressed == 2; }));
    tests::runFor(50);
    EXPECT_EQ(m_pressed, 2);
}

TEST_F(KGlobalAccelHotKeyTest, PressesOfOtherActionsAndReleasesAreNone) {
    appear();
    ASSERT_TRUE(take(Registration::Registered));
    const QString component = QStringLiteral("local.vantle.Vantle");
    m_desktop.send(QStringLiteral("globalShortcutPressed"), {QStringLiteral("kwin"), {}});
    m_desktop.send(QStringLiteral("globalShortcutPressed"), {component, QStringLiteral("other")});
    m_desktop.send(QStringLiteral("globalShortcutReleased"), {component, QStringLiteral("toggle")});
    m_desktop.press();
    EXPECT_TRUE(await([this] { return m_pressed > 0; }));
    EXPECT_EQ(m_pressed, 1);
}

TEST_F(KGlobalAccelHotKeyTest, KeysOfTheUsersOwnChoiceStayAndAreTold) {
    appear();
    ASSERT_TRUE(take(Registration::Registered));
    m_desktop.choose(FakeKGlobalAccel::kAltSuperC);
    EXPECT_TRUE(comesTo(Registration::Registered, QStringLiteral("Meta+Alt+C")));
    m_key->unregisterKey();
    m_key.reset();
    EXPECT_TRUE(await([this] { return !m_desktop.isHeld(); }));
    EXPECT_EQ(m_desktop.ours().keys.value(0).chords.value(0), FakeKGlobalAccel::kAltSuperC);

    make();
    ASSERT_TRUE(await([this] { return m_key->isOffered() == true; }));
    ASSERT_TRUE(take(Registration::Registered, QStringLiteral("Meta+Alt+C")));
    EXPECT_TRUE(m_desktop.isHeld());
}

TEST_F(KGlobalAccelHotKeyTest, KeysThatTheUserRemovedAreNotTakenAgain) {
    appear();
    ASSERT_TRUE(take(Registration::Registered));
    m_desktop.choose(0);
    EXPECT_TRUE(comesTo(Registration::KeysRemoved));
    m_key->unregisterKey();
    ASSERT_TRUE(take(Registration::KeysRemoved));
    m_desktop.choose(FakeKGlobalAccel::kAltSuperB);
    EXPECT_TRUE(comesTo(Registration::Registered));
    m_desktop.press();
    EXPECT_TRUE(await([this] { return m_pressed == 1; }));
}

TEST_F(KGlobalAccelHotKeyTest, RefusalIsNotRememberedAsAWishToHaveNoKeys) {
    appear();
    m_desktop.setHeldByAnother(true);
    ASSERT_TRUE(take(Registration::HeldByAnother));
    EXPECT_TRUE(m_desktop.ours().isFresh);
    m_desktop.setHeldByAnother(false);
    EXPECT_TRUE(take(Registration::Registered));
}

TEST_F(KGlobalAccelHotKeyTest, KeysThatTheUserGivesAfterARefusalAreHeard) {
    appear();
    m_desktop.setHeldByAnother(true);
    ASSERT_TRUE(take(Registration::HeldByAnother));
    m_desktop.choose(FakeKGlobalAccel::kAltSuperC);
    EXPECT_TRUE(comesTo(Registration::Registered, QStringLiteral("Meta+Alt+C")));
}

TEST_F(KGlobalAccelHotKeyTest, ErrorIsAFailure) {
    appear();
    m_desktop.refuses = true;
    EXPECT_TRUE(take(Registration::Failed));
    EXPECT_EQ(m_outcome.status, KGlobalAccelHotKey::kNoAnswer);
}

TEST_F(KGlobalAccelHotKeyTest, HangingServiceBlocksNothing) {
    appear();
    m_desktop.hesitates = true;
    EXPECT_EQ(m_key->registerKey().registration, Registration::Waiting);
    tests::runFor(50);
    m_desktop.hesitates = false;
    m_key->unregisterKey();
    EXPECT_TRUE(take(Registration::Registered));
}

TEST_F(KGlobalAccelHotKeyTest, ServiceThatIsNotThereComesAndGoesIsFollowed) {
    EXPECT_EQ(m_key->isOffered(), std::nullopt) << "not told yet";
    EXPECT_TRUE(await([this] { return m_key->isOffered() == false; }));
    int changes = 0;
    m_key->onOfferedChanged = [&] { ++changes; };
    appear();
    ASSERT_TRUE(take(Registration::Registered));
    m_desktop.disappear();
    EXPECT_TRUE(await([this] { return m_key->isOffered() == false; }));
    EXPECT_EQ(changes, 2);
}

TEST(KGlobalAccelHotKey, WithoutABusItIsNotOffered) {
    const fakes::VirtualTime time;
    EXPECT_EQ(KGlobalAccelHotKey(tests::noBus(), time).isOffered(), false);
}

} // namespace
} // namespace vantle
