#include "platform/FirstHotKey.h"

#include "fakes/FakeOfferedHotKey.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>

namespace vantle {
namespace {

using fakes::FakeOfferedHotKey;
using Registration = HotKeyPort::Registration;

const HotKeyPort::Outcome kWaiting{Registration::Waiting};
const HotKeyPort::Outcome kRegistered{Registration::Registered};
const HotKeyPort::Outcome kNotOffered{Registration::NotOffered};

class FirstHotKeyTest : public testing::Test {
protected:
    void make(std::optional<bool> first, std::optional<bool> second) {
        std::vector<std::unique_ptr<OfferedHotKey>> ways;
        for (const auto offered : {first, second}) {
            auto way = std::make_unique<FakeOfferedHotKey>(offered);
            m_ways.push_back(way.get());
            ways.push_back(std::move(way));
        }
        m_key = std::make_unique<FirstHotKey>(std::move(ways));
        m_key->onOutcomeChanged = [this](const auto& outcome) { m_told.push_back(outcome); };
        ASSERT_EQ(m_key->installHandler([this] { ++m_pressed; }), 0);
    }
    void expectHeld(int first, int second) {
        EXPECT_EQ(m_ways[0]->port.keys, first);
        EXPECT_EQ(m_ways[0]->port.handlers, first);
        EXPECT_EQ(m_ways[1]->port.keys, second);
        EXPECT_EQ(m_ways[1]->port.handlers, second);
    }

    std::vector<FakeOfferedHotKey*> m_ways;
    std::unique_ptr<FirstHotKey> m_key;
    std::vector<HotKeyPort::Outcome> m_told;
    int m_pressed = 0;
};

TEST_F(FirstHotKeyTest, EachCombinationOfServicesIsServedByTheFirst) {
    struct Case {
        std::optional<bool> first, second;
        HotKeyPort::Outcome outcome;
        int heldByFirst, heldBySecond;
    };
    for (const auto& each :
         {Case{true, true, kRegistered, 1, 0}, Case{true, false, kRegistered, 1, 0},
          Case{true, {}, kRegistered, 1, 0}, Case{false, true, kRegistered, 0, 1},
          Case{false, false, kNotOffered, 0, 0}, Case{false, {}, kWaiting, 0, 0},
          Case{{}, true, kWaiting, 0, 0}, Case{{}, false, kWaiting, 0, 0},
          Case{{}, {}, kWaiting, 0, 0}}) {
        m_ways.clear();
        make(each.first, each.second);
        EXPECT_EQ(m_key->registerKey(), each.outcome);
        expectHeld(each.heldByFirst, each.heldBySecond);
    }
    EXPECT_TRUE(m_told.empty()) << "what the caller is told at once is told once";
}

TEST_F(FirstHotKeyTest, ServicesThatAnswerLateAreWaitedForInOrder) {
    make({}, {});
    EXPECT_EQ(m_key->registerKey(), kWaiting);
    m_ways[1]->offer(true);
    expectHeld(0, 0);
    EXPECT_TRUE(m_told.empty());
    m_ways[0]->offer(false);
    expectHeld(0, 1);
    EXPECT_EQ(m_told, std::vector{kRegistered});
    m_ways[1]->port.press();
    EXPECT_EQ(m_pressed, 1);
}

TEST_F(FirstHotKeyTest, ServiceThatComesLaterIsPreferredAndGivesBackWhenItGoes) {
    make(false, true);
    ASSERT_EQ(m_key->registerKey(), kRegistered);
    m_ways[0]->offer(true);
    expectHeld(1, 0);
    m_ways[0]->offer(false);
    expectHeld(0, 1);
    m_ways[1]->offer(false);
    expectHeld(0, 0);
    EXPECT_EQ(m_told, std::vector{kNotOffered});
    m_ways[1]->offer(true);
    expectHeld(0, 1);
    EXPECT_EQ(m_told.size(), 2U);
}

TEST_F(FirstHotKeyTest, WhatTheDesktopAnswersIsPassedOn) {
    make(true, true);
    m_ways[0]->port.outcome = kWaiting;
    EXPECT_EQ(m_key->registerKey(), kWaiting);
    const HotKeyPort::Outcome held{Registration::HeldByAnother};
    m_ways[0]->port.become(held);
    EXPECT_EQ(m_told, std::vector{held});
    expectHeld(1, 0);
    m_ways[0]->port.become({Registration::Registered, 0, QStringLiteral("Ctrl+F9")});
    EXPECT_EQ(m_told.back().keys, QStringLiteral("Ctrl+F9"));
}

TEST_F(FirstHotKeyTest, WhatTakesTheUsersWordComesLastUnlessItIsGiven) {
    make(true, true);
    m_ways[0]->port.way = QStringLiteral("portal");
    ASSERT_EQ(m_key->registerKey(), kRegistered);
    expectHeld(0, 1);
    EXPECT_EQ(m_key->wayToAllow(), QString());
    m_key->unregisterKey();
    m_key->recallAllowed(QStringLiteral("portal"));
    ASSERT_EQ(m_key->registerKey(), kRegistered);
    expectHeld(1, 0);
    EXPECT_EQ(m_ways[0]->port.recalled, QStringLiteral("portal"));
}

TEST_F(FirstHotKeyTest, OfSeveralThatTakeTheUsersWordTheAllowedOneIsFirst) {
    make(true, true);
    m_ways[0]->port.way = QStringLiteral("portal");
    m_ways[1]->port.way = QStringLiteral("gnome");
    ASSERT_EQ(m_key->registerKey(), kRegistered);
    expectHeld(1, 0);
    EXPECT_EQ(m_key->wayToAllow(), QStringLiteral("portal"));
    m_key->unregisterKey();
    m_key->recallAllowed(QStringLiteral("gnome"));
    ASSERT_EQ(m_key->registerKey(), kRegistered);
    expectHeld(0, 1);
    EXPECT_EQ(m_key->wayToAllow(), QStringLiteral("gnome"));
}

TEST_F(FirstHotKeyTest, TheUsersWordGoesToTheWayInUse) {
    make(true, true);
    m_ways[0]->port.way = QStringLiteral("portal");
    m_ways[1]->port.way = QStringLiteral("gnome");
    m_ways[0]->port.outcome = {Registration::NotAllowed};
    EXPECT_EQ(m_key->registerKey(), HotKeyPort::Outcome{Registration::NotAllowed});
    EXPECT_EQ(m_key->allow(true), kWaiting);
    EXPECT_EQ(m_ways[0]->port.isAllowed, true);
    EXPECT_EQ(m_ways[1]->port.isAllowed, std::nullopt);
    m_ways[0]->port.become(kRegistered);
    EXPECT_EQ(m_told, std::vector{kRegistered});
}

TEST_F(FirstHotKeyTest, NothingIsTakenBeforeNorAfter) {
    make(false, false);
    m_ways[0]->offer(true);
    expectHeld(0, 0);
    ASSERT_EQ(m_key->registerKey(), kRegistered);
    m_key->unregisterKey();
    expectHeld(0, 0);
    m_ways[0]->offer(false);
    m_ways[0]->offer(true);
    expectHeld(0, 0);
    EXPECT_TRUE(m_told.empty());
}

TEST_F(FirstHotKeyTest, ItsEndGivesTheKeysBack) {
    make(true, true);
    ASSERT_EQ(m_key->registerKey(), kRegistered);
    const FakeOfferedHotKey& first = *m_ways[0];
    m_key->unregisterKey();
    EXPECT_EQ(first.port.keys, 0);
    EXPECT_EQ(first.port.handlers, 0);
}

TEST(FirstHotKey, WithoutAnyWayNothingIsOffered) {
    FirstHotKey key({});
    EXPECT_EQ(key.registerKey(), kNotOffered);
    key.unregisterKey();
}

} // namespace
} // namespace vantle
