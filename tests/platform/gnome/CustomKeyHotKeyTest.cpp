#include "platform/gnome/CustomKeyHotKey.h"

#include "platform/ToggleCommand.h"
#include "platform/gnome/FakeCustomKeys.h"
#include "support/Await.h"

#include <gtest/gtest.h>

#include <memory>

namespace vantle {
namespace {

using Registration = HotKeyPort::Registration;
using tests::await;

const QString kOthers = QStringLiteral("['/a/custom0/', '/a/custom1/']");

class CustomKeyHotKeyTest : public testing::Test {
protected:
    CustomKeyHotKeyTest() { make(); }
    void make() {
        m_key = std::make_unique<CustomKeyHotKey>(m_session.bus(), m_gnome.runner, m_gnome.tool);
        m_key->onOutcomeChanged = [this](const auto& outcome) { m_outcome = outcome; };
    }
    void appear() {
        m_gnome.appear();
        ASSERT_TRUE(await([this] { return m_key->isOffered() == true; }));
    }
    void setUp() {
        appear();
        ASSERT_EQ(m_key->registerKey().registration, Registration::NotAllowed);
        ASSERT_EQ(m_key->allow(true).registration, Registration::Waiting);
        m_gnome.settle();
        ASSERT_EQ(m_outcome, HotKeyPort::Outcome{Registration::Registered});
    }
    /// The program of a later run.
    HotKeyPort::Outcome takeAgain() {
        make();
        m_key->recallAllowed(QStringLiteral("gnome"));
        m_outcome = m_key->registerKey();
        m_gnome.settle();
        return m_outcome;
    }

    tests::FakeCustomKeys m_gnome;
    tests::BusClient m_session;
    std::unique_ptr<CustomKeyHotKey> m_key;
    HotKeyPort::Outcome m_outcome;
};

TEST_F(CustomKeyHotKeyTest, NothingIsReadOrWrittenBeforeTheUserAllowsIt) {
    appear();
    EXPECT_EQ(m_key->registerKey().registration, Registration::NotAllowed);
    EXPECT_TRUE(m_gnome.runner.collected.empty());
}

TEST_F(CustomKeyHotKeyTest, KeyRunsTheCommandAndStandsBesideThoseOfTheUser) {
    m_gnome.setList(kOthers);
    setUp();
    EXPECT_EQ(m_gnome.list(),
              QStringLiteral("['/a/custom0/', '/a/custom1/', '%1']").arg(m_gnome.path));
    EXPECT_EQ(m_gnome.ofKey("name"), QStringLiteral("'Vantle'"));
    EXPECT_EQ(m_gnome.ofKey("command"), QStringLiteral("'%1'").arg(toggleCommand()));
    EXPECT_EQ(m_gnome.ofKey("binding"), QStringLiteral("'<Alt><Super>b'"));
}

TEST_F(CustomKeyHotKeyTest, SwitchedOffItLeavesNothingButTheKeysOfTheUser) {
    m_gnome.setList(kOthers);
    setUp();
    EXPECT_EQ(m_key->allow(false).registration, Registration::NotAllowed);
    m_gnome.settle();
    EXPECT_EQ(m_gnome.list(), kOthers);
    EXPECT_EQ(m_gnome.values.size(), 1);
    setUp();
    (void)m_key->allow(false);
    m_gnome.settle();
    EXPECT_EQ(m_gnome.list(), kOthers);
}

TEST_F(CustomKeyHotKeyTest, TheLastKeyLeavesAnEmptyList) {
    setUp();
    (void)m_key->allow(false);
    m_gnome.settle();
    EXPECT_EQ(m_gnome.list(), QStringLiteral("@as []"));
}

TEST_F(CustomKeyHotKeyTest, StaysAfterTheEndAndIsFoundInALaterRun) {
    setUp();
    m_key->unregisterKey();
    const auto written = m_gnome.values;
    EXPECT_EQ(takeAgain(), HotKeyPort::Outcome{Registration::Registered});
    EXPECT_EQ(m_gnome.values, written);
}

TEST_F(CustomKeyHotKeyTest, KeysOfTheUsersOwnChoiceStayAndAreTold) {
    setUp();
    m_gnome.choose(QStringLiteral("<Control>F9"));
    EXPECT_EQ(takeAgain(),
              (HotKeyPort::Outcome{Registration::Registered, 0, QStringLiteral("Ctrl+F9")}));
    EXPECT_EQ(m_gnome.ofKey("binding"), QStringLiteral("'<Control>F9'"));
    m_gnome.choose({});
    EXPECT_EQ(takeAgain().registration, Registration::KeysRemoved);
}

TEST_F(CustomKeyHotKeyTest, WhatTheUserRemovedIsNotWrittenAgain) {
    setUp();
    m_gnome.setList(QStringLiteral("@as []"));
    EXPECT_EQ(takeAgain().registration, Registration::NotAllowed);
    EXPECT_EQ(m_gnome.list(), QStringLiteral("@as []"));
}

TEST_F(CustomKeyHotKeyTest, ChangeOfMindWhileTheToolRunsEndsWithTheLastWish) {
    m_gnome.setList(kOthers);
    appear();
    (void)m_key->registerKey();
    (void)m_key->allow(true);
    m_gnome.settleOne();
    m_gnome.settleOne();
    (void)m_key->allow(false);
    (void)m_key->allow(true);
    (void)m_key->allow(false);
    m_gnome.settle();
    EXPECT_EQ(m_gnome.list(), kOthers);
    EXPECT_EQ(m_gnome.ofKey("name"), QString());
}

TEST_F(CustomKeyHotKeyTest, ToolThatFailsIsAFailure) {
    appear();
    m_gnome.toolFails = true;
    (void)m_key->allow(true);
    m_gnome.settle();
    EXPECT_EQ(m_outcome, (HotKeyPort::Outcome{Registration::Failed, CustomKeyHotKey::kToolFailed}));
}

TEST_F(CustomKeyHotKeyTest, DaemonThatComesAndGoesIsFollowed) {
    EXPECT_EQ(m_key->isOffered(), std::nullopt);
    EXPECT_TRUE(await([this] { return m_key->isOffered() == false; }));
    appear();
    m_gnome.disappear();
    EXPECT_TRUE(await([this] { return m_key->isOffered() == false; }));
}

TEST_F(CustomKeyHotKeyTest, WithoutTheToolOrABusItIsNotOffered) {
    EXPECT_EQ(CustomKeyHotKey(m_session.bus(), m_gnome.runner, {}).isOffered(), false);
    EXPECT_EQ(CustomKeyHotKey(tests::noBus(), m_gnome.runner, m_gnome.tool).isOffered(), false);
}

} // namespace
} // namespace vantle
