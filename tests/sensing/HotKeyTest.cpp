#include "sensing/HotKey.h"

#include "fakes/FakeHotKeyPort.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "tracking/Settings.h"

#include <QVariant>

#include <gtest/gtest.h>

#include <memory>

namespace vantle {
namespace {

using Registration = HotKeyPort::Registration;

class HotKeyTest : public testing::Test {
protected:
    HotKeyTest() {
        hotKey->onPressed = [this] { ++presses; };
        QObject::connect(hotKey.get(), &HotKey::isRegisteredChanged,
                         [this] { ++registeredChanges; });
        QObject::connect(hotKey.get(), &HotKey::registrationErrorChanged,
                         [this] { ++errorChanges; });
    }

    void expectHeld(bool held) {
        EXPECT_EQ(hotKey->isRegistered(), held);
        EXPECT_EQ(port.handlers, held ? 1 : 0);
        EXPECT_EQ(port.keys, held ? 1 : 0);
    }

    fakes::VirtualTime time;
    fakes::FakeHotKeyPort port;
    fakes::MemoryPreferences preferences;
    std::unique_ptr<HotKey> hotKey = std::make_unique<HotKey>(port, time, preferences);
    int presses = 0;
    int registeredChanges = 0;
    int errorChanges = 0;
};

TEST_F(HotKeyTest, HoldsNothingAtFirst) {
    expectHeld(false);
    EXPECT_EQ(hotKey->registrationError(), std::nullopt);
}

TEST_F(HotKeyTest, HoldsTheCombinationOnceRegistered) {
    hotKey->registerHotKey();
    expectHeld(true);
    EXPECT_EQ(hotKey->registrationError(), std::nullopt);
    EXPECT_EQ(registeredChanges, 1);
    EXPECT_EQ(errorChanges, 0);
}

TEST_F(HotKeyTest, RegisteredTwiceInstallsOneHandler) {
    hotKey->registerHotKey();
    hotKey->registerHotKey();
    expectHeld(true);
    EXPECT_EQ(registeredChanges, 1);
}

TEST_F(HotKeyTest, DeliversAPressOnlyAfterTheHandlerHasReturned) {
    hotKey->registerHotKey();
    EXPECT_TRUE(port.press());
    EXPECT_EQ(presses, 0);
    time.settle();
    EXPECT_EQ(presses, 1);
}

TEST_F(HotKeyTest, DeliversEveryPress) {
    hotKey->registerHotKey();
    port.press();
    port.press();
    time.settle();
    EXPECT_EQ(presses, 2);
}

TEST_F(HotKeyTest, AcceptsAPressWithoutAListener) {
    hotKey->onPressed = nullptr;
    hotKey->registerHotKey();
    EXPECT_TRUE(port.press());
    time.settle();
    EXPECT_EQ(presses, 0);
}

TEST_F(HotKeyTest, ForgetsAPressWhenItIsGoneByThen) {
    hotKey->registerHotKey();
    port.press();
    hotKey.reset();
    time.settle();
    EXPECT_EQ(presses, 0);
}

TEST_F(HotKeyTest, SaysThatAnotherApplicationHoldsTheCombination) {
    port.outcome = {Registration::HeldByAnother, 10};
    hotKey->registerHotKey();
    EXPECT_EQ(hotKey->registrationError(),
              QStringLiteral("\u2325\u2318B is already used by another app."));
    expectHeld(false);
    EXPECT_EQ(registeredChanges, 0);
    EXPECT_EQ(errorChanges, 1);
}

TEST_F(HotKeyTest, SaysWhichStatusAFailureHad) {
    port.outcome = {Registration::Failed, -50};
    hotKey->registerHotKey();
    EXPECT_EQ(hotKey->registrationError(),
              QStringLiteral("Couldn\u2019t register \u2325\u2318B (-50)."));
    expectHeld(false);
}

TEST_F(HotKeyTest, SaysThatNoHandlerCouldBeInstalled) {
    port.installStatus = -1;
    hotKey->registerHotKey();
    EXPECT_EQ(hotKey->registrationError(),
              QStringLiteral("Couldn\u2019t install the shortcut handler (-1)."));
    expectHeld(false);
}

TEST_F(HotKeyTest, StartsCleanAfterAFailure) {
    port.outcome = {Registration::HeldByAnother, 10};
    hotKey->registerHotKey();
    port.outcome = {Registration::Registered, 0};
    hotKey->registerHotKey();
    expectHeld(true);
    EXPECT_EQ(hotKey->registrationError(), std::nullopt);
    EXPECT_EQ(errorChanges, 2);
}

TEST_F(HotKeyTest, DoesNotTryAgainByItself) {
    port.outcome = {Registration::HeldByAnother, 10};
    hotKey->registerHotKey();
    port.outcome = {Registration::Registered, 0};
    time.advance(3600);
    expectHeld(false);
}

TEST_F(HotKeyTest, TellsThatTheCombinationWasLostAndThatItIsBack) {
    hotKey->registerHotKey();
    port.become({Registration::HeldByAnother, 0});
    EXPECT_FALSE(hotKey->isRegistered());
    EXPECT_EQ(hotKey->registrationError(),
              QStringLiteral("\u2325\u2318B is already used by another app."));
    port.become({Registration::Registered, 0});
    EXPECT_EQ(hotKey->registrationError(), std::nullopt);
    expectHeld(true);
    port.press();
    time.settle();
    EXPECT_EQ(presses, 1);
}

TEST_F(HotKeyTest, WaitsForADesktopThatAnswersLater) {
    port.outcome = {Registration::Waiting};
    hotKey->registerHotKey();
    EXPECT_FALSE(hotKey->isRegistered());
    EXPECT_EQ(hotKey->registrationError(), std::nullopt);
    port.become({Registration::Registered});
    expectHeld(true);
    port.press();
    time.settle();
    EXPECT_EQ(presses, 1);
    port.become({Registration::HeldByAnother});
    EXPECT_EQ(hotKey->registrationError(),
              QStringLiteral("\u2325\u2318B is already used by another app."));
    hotKey->unregisterHotKey();
    expectHeld(false);
}

TEST_F(HotKeyTest, DesktopWithoutShortcutsIsNoFailure) {
    for (const auto registration : {Registration::NotOffered, Registration::KeysRemoved}) {
        port.outcome = {registration};
        hotKey->registerHotKey();
        EXPECT_FALSE(hotKey->isRegistered());
        EXPECT_EQ(hotKey->registration(), registration);
        EXPECT_EQ(hotKey->registrationError(), std::nullopt);
        hotKey->unregisterHotKey();
        expectHeld(false);
    }
}

TEST_F(HotKeyTest, NamesTheKeysThatWereReallyTaken) {
    int changes = 0;
    QObject::connect(hotKey.get(), &HotKey::outcomeChanged, [&] { ++changes; });
    hotKey->registerHotKey();
    EXPECT_EQ(hotKey->keys(), QString());
    port.become({Registration::Registered, 0, QStringLiteral("Meta+Alt+C")});
    EXPECT_EQ(hotKey->keys(), QStringLiteral("Meta+Alt+C"));
    EXPECT_EQ(changes, 2);
}

TEST_F(HotKeyTest, ConsentIsStoredForLaterRuns) {
    port.way = QStringLiteral("portal");
    port.outcome = {Registration::NotAllowed};
    hotKey->registerHotKey();
    EXPECT_EQ(port.recalled, QString());
    EXPECT_TRUE(hotKey->takesAllowance());
    EXPECT_EQ(port.isAllowed, std::nullopt);
    hotKey->allow(true);
    EXPECT_EQ(port.isAllowed, true);
    EXPECT_EQ(hotKey->registration(), Registration::Waiting);
    port.become({Registration::Registered});
    expectHeld(true);

    hotKey = std::make_unique<HotKey>(port, time, preferences);
    port.outcome = {Registration::Registered};
    hotKey->registerHotKey();
    EXPECT_EQ(port.recalled, QStringLiteral("portal"));
    hotKey->allow(false);
    EXPECT_EQ(port.isAllowed, false);
    EXPECT_FALSE(hotKey->isRegistered());
    EXPECT_EQ(settings::hotKeyAllowed.read(preferences), QString());
}

TEST_F(HotKeyTest, WhatTheUserDeclinesInTheDesktopsDialogIsForgotten) {
    port.way = QStringLiteral("portal");
    port.outcome = {Registration::NotAllowed};
    hotKey->registerHotKey();
    hotKey->allow(true);
    EXPECT_EQ(settings::hotKeyAllowed.read(preferences), QStringLiteral("portal"));
    port.become({Registration::NotAllowed});
    EXPECT_EQ(settings::hotKeyAllowed.read(preferences), QString());
}

TEST_F(HotKeyTest, ConsentSurvivesADesktopWithAnotherWay) {
    settings::hotKeyAllowed.write(preferences, QStringLiteral("gnome"));
    port.way = QStringLiteral("portal");
    port.outcome = {Registration::NotAllowed};
    hotKey->registerHotKey();
    EXPECT_EQ(settings::hotKeyAllowed.read(preferences), QStringLiteral("gnome"));
}

TEST_F(HotKeyTest, ConsentIsNotAskedForBeforeARegistration) {
    port.way = QStringLiteral("portal");
    hotKey->allow(true);
    EXPECT_EQ(port.isAllowed, std::nullopt);
    EXPECT_EQ(settings::hotKeyAllowed.read(preferences), QString());
}

TEST_F(HotKeyTest, ConsentIsIgnoredWhereNoneIsNeeded) {
    hotKey->registerHotKey();
    hotKey->allow(true);
    EXPECT_EQ(port.isAllowed, std::nullopt);
    EXPECT_EQ(settings::hotKeyAllowed.read(preferences), QString());
}

TEST_F(HotKeyTest, ALostCombinationIsReleasedAndCanBeRegisteredAgain) {
    hotKey->registerHotKey();
    port.become({Registration::Failed, -2});
    hotKey->registerHotKey();
    expectHeld(true);
    port.become({Registration::Failed, -2});
    hotKey->unregisterHotKey();
    expectHeld(false);
    hotKey->registerHotKey();
    port.become({Registration::Failed, -2});
    hotKey.reset();
    EXPECT_EQ(port.handlers, 0);
    EXPECT_EQ(port.keys, 0);
}

TEST_F(HotKeyTest, GivesTheCombinationBack) {
    hotKey->registerHotKey();
    hotKey->unregisterHotKey();
    expectHeld(false);
    EXPECT_FALSE(port.press());
    EXPECT_EQ(registeredChanges, 2);
    hotKey->unregisterHotKey();
    expectHeld(false);
    EXPECT_EQ(registeredChanges, 2);
}

TEST_F(HotKeyTest, CanBeRegisteredAgainAfterItWasGivenBack) {
    hotKey->registerHotKey();
    hotKey->unregisterHotKey();
    hotKey->registerHotKey();
    expectHeld(true);
    port.press();
    time.settle();
    EXPECT_EQ(presses, 1);
}

TEST_F(HotKeyTest, KeepsItsErrorWhenUnregistered) {
    port.outcome = {Registration::HeldByAnother, 10};
    hotKey->registerHotKey();
    hotKey->unregisterHotKey();
    EXPECT_NE(hotKey->registrationError(), std::nullopt);
}

TEST_F(HotKeyTest, GivesTheCombinationBackWhenItGoes) {
    hotKey->registerHotKey();
    hotKey.reset();
    EXPECT_EQ(port.handlers, 0);
    EXPECT_EQ(port.keys, 0);
}

TEST_F(HotKeyTest, PublishesItsStateAsProperties) {
    EXPECT_EQ(hotKey->property("isRegistered"), QVariant(false));
    EXPECT_EQ(hotKey->property("registrationError"), QVariant(QString()));
    hotKey->registerHotKey();
    EXPECT_EQ(hotKey->property("isRegistered"), QVariant(true));
}

} // namespace
} // namespace vantle
