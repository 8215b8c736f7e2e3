#include "platform/session/PortalHotKey.h"

#include "fakes/VirtualTime.h"
#include "platform/session/FakeShortcutPortal.h"
#include "support/Await.h"
#include "support/PrintedWarnings.h"

#include <QDBusMetaType>
#include <QMap>

#include <gtest/gtest.h>

#include <memory>

namespace vantle {
namespace {

using Registration = HotKeyPort::Registration;
using tests::await;

const QString kAllowed = QStringLiteral("portal");

class PortalHotKeyTest : public testing::Test {
protected:
    PortalHotKeyTest() {
        m_key = std::make_unique<PortalHotKey>(m_session.bus(), qgetenv("DBUS_SESSION_BUS_ADDRESS"),
                                               m_time);
        m_key->onOutcomeChanged = [this](const auto& outcome) { m_outcome = outcome; };
        EXPECT_EQ(m_key->installHandler([this] { ++m_pressed; }), 0);
    }
    void appear() {
        m_desktop.appear();
        ASSERT_TRUE(await([this] { return m_key->isOffered() == true; }));
    }
    [[nodiscard]] bool comesTo(Registration registration, const QString& keys = {}) {
        return await(
            [&] { return m_outcome.registration == registration && m_outcome.keys == keys; });
    }
    void setUp() {
        appear();
        EXPECT_EQ(m_key->registerKey().registration, Registration::NotAllowed);
        EXPECT_EQ(m_key->allow(true).registration, Registration::Waiting);
        ASSERT_TRUE(await([this] { return m_desktop.isAsking(); }));
    }

    tests::FakeShortcutPortal m_desktop;
    tests::BusClient m_session;
    fakes::VirtualTime m_time;
    std::unique_ptr<PortalHotKey> m_key;
    HotKeyPort::Outcome m_outcome;
    int m_pressed = 0;
};

TEST_F(PortalHotKeyTest, AsksTheUserOnlyWhenToldTo) {
    appear();
    EXPECT_EQ(m_key->registerKey().registration, Registration::NotAllowed);
    tests::runFor(50);
    EXPECT_EQ(m_desktop.calls.size(), 1) << "of the connection that asked for the version";
    EXPECT_EQ(m_desktop.calls.first(), QStringList{QStringLiteral("Get")});
    EXPECT_EQ(m_key->allow(true).registration, Registration::Waiting);
    ASSERT_TRUE(await([this] { return m_desktop.isAsking(); }));
    EXPECT_EQ(m_desktop.wanted().value(0).properties.value(QStringLiteral("preferred_trigger")),
              QStringLiteral("LOGO+ALT+b"));
    m_desktop.grant();
    EXPECT_TRUE(comesTo(Registration::Registered));
    m_desktop.press();
    EXPECT_TRUE(await([this] { return m_pressed == 1; }));
    m_desktop.press(QStringLiteral("another"));
    m_desktop.press();
    EXPECT_TRUE(await([this] { return m_pressed == 2; }));
}

TEST_F(PortalHotKeyTest, TellsWhoItIsBeforeAnythingElseOnItsConnection) {
    setUp();
    EXPECT_TRUE(m_desktop.calls.values().contains(QStringList{QStringLiteral("Register"),
                                                              QStringLiteral("CreateSession"),
                                                              QStringLiteral("BindShortcuts")}));
}

TEST_F(PortalHotKeyTest, SessionWhoseHandleIsNoPathIsNone) {
    const tests::PrintedWarnings printed;
    m_desktop.handle = QStringLiteral("session 1");
    appear();
    EXPECT_EQ(m_key->registerKey().registration, Registration::NotAllowed);
    m_outcome = m_key->allow(true);
    EXPECT_EQ(m_outcome.registration, Registration::Waiting);
    EXPECT_TRUE(comesTo(Registration::Failed));
    EXPECT_EQ(printed.count(), 0);
}

TEST_F(PortalHotKeyTest, ShortcutsOfAnotherTypeAreNone) {
    qDBusRegisterMetaType<QMap<QString, QString>>();
    setUp();
    m_desktop.grant();
    ASSERT_TRUE(comesTo(Registration::Registered));
    for (const QVariant& shortcuts :
         {QVariant::fromValue(QList<int>{1, 2, 3}), QVariant(QStringLiteral("toggle")),
          QVariant::fromValue(QMap<QString, QString>{{kAllowed, kAllowed}}),
          QVariant(QStringList{kAllowed})}) {
        m_desktop.tellShortcuts(shortcuts);
        EXPECT_TRUE(comesTo(Registration::KeysRemoved)) << shortcuts.typeName();
        m_desktop.change(QStringLiteral("Press <Alt><Super>b"));
        EXPECT_TRUE(comesTo(Registration::Registered));
    }
}

TEST_F(PortalHotKeyTest, PortalWithoutARegistryServesAsWell) {
    m_desktop.hasRegistry = false;
    setUp();
    m_desktop.grant();
    EXPECT_TRUE(comesTo(Registration::Registered));
}

TEST_F(PortalHotKeyTest, WhatWasAllowedInAFormerRunIsBoundAtOnce) {
    m_desktop.asksNothing = true;
    m_key->recallAllowed(kAllowed);
    appear();
    EXPECT_EQ(m_key->registerKey().registration, Registration::Waiting);
    EXPECT_TRUE(comesTo(Registration::Registered));
}

TEST_F(PortalHotKeyTest, AllowanceOfAnotherWayIsNone) {
    m_key->recallAllowed(QStringLiteral("gnome"));
    appear();
    EXPECT_EQ(m_key->registerKey().registration, Registration::NotAllowed);
}

TEST_F(PortalHotKeyTest, WhatTheUserDeclinesIsNotAllowed) {
    setUp();
    m_desktop.decline();
    EXPECT_TRUE(comesTo(Registration::NotAllowed));
}

TEST_F(PortalHotKeyTest, KeysOfTheUsersOwnChoiceAreTold) {
    setUp();
    m_desktop.grant(QStringLiteral("Press <Control><Alt>F9"));
    EXPECT_TRUE(comesTo(Registration::Registered, QStringLiteral("Ctrl+Alt+F9")));
    m_desktop.change(QStringLiteral("Press <Shift>F2"));
    EXPECT_TRUE(comesTo(Registration::Registered, QStringLiteral("Shift+F2")));
    m_desktop.change({});
    EXPECT_TRUE(comesTo(Registration::KeysRemoved));
}

TEST_F(PortalHotKeyTest, KeyThatIsHeldDownIsOnePress) {
    setUp();
    m_desktop.grant();
    ASSERT_TRUE(comesTo(Registration::Registered));
    m_desktop.press(QStringLiteral("toggle"), 50);
    m_desktop.press(QStringLiteral("toggle"), 50);
    EXPECT_TRUE(await([this] { return m_pressed == 2; }));
    tests::runFor(50);
    EXPECT_EQ(m_pressed, 2);
}

TEST_F(PortalHotKeyTest, SwitchedOffNothingIsHeard) {
    setUp();
    m_desktop.grant();
    ASSERT_TRUE(comesTo(Registration::Registered));
    EXPECT_EQ(m_key->allow(false).registration, Registration::NotAllowed);
    m_desktop.press();
    tests::runFor(50);
    EXPECT_EQ(m_pressed, 0);
}

TEST_F(PortalHotKeyTest, SessionThatIsClosedIsALoss) {
    setUp();
    m_desktop.grant();
    ASSERT_TRUE(comesTo(Registration::Registered));
    m_desktop.closeSession();
    EXPECT_TRUE(comesTo(Registration::Failed));
}

TEST_F(PortalHotKeyTest, ErrorIsAFailure) {
    appear();
    m_desktop.refuses = true;
    m_outcome = m_key->allow(true);
    ASSERT_EQ(m_outcome.registration, Registration::Waiting);
    EXPECT_TRUE(comesTo(Registration::Failed));
    EXPECT_EQ(m_outcome.status, PortalHotKey::kNoAnswer);
}

TEST_F(PortalHotKeyTest, PortalWithoutShortcutsOffersNone) {
    EXPECT_EQ(m_key->isOffered(), std::nullopt);
    EXPECT_TRUE(await([this] { return m_key->isOffered() == false; })) << "no portal";
    m_desktop.hasShortcuts = false;
    m_desktop.appear();
    tests::runFor(50);
    EXPECT_EQ(m_key->isOffered(), false);
}

TEST_F(PortalHotKeyTest, PortalThatComesAndGoesIsFollowed) {
    int changes = 0;
    EXPECT_TRUE(await([this] { return m_key->isOffered() == false; }));
    m_key->onOfferedChanged = [&] { ++changes; };
    appear();
    m_desktop.disappear();
    EXPECT_TRUE(await([this] { return m_key->isOffered() == false; }));
    EXPECT_EQ(changes, 2);
}

TEST(PortalHotKey, WithoutABusItIsNotOffered) {
    const fakes::VirtualTime time;
    EXPECT_EQ(PortalHotKey(tests::noBus(), "disabled:", time).isOffered(), false);
}

} // namespace
} // namespace vantle
