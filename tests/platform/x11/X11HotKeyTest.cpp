#include "platform/x11/X11HotKey.h"

#include "fakes/VirtualTime.h"
#include "platform/x11/OwnServer.h"
#include "support/Await.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using Registration = HotKeyPort::Registration;
using tests::catchUp;

/// One program with a hot key, and the user at the keyboard.
class X11HotKeyTest : public testing::Test {
protected:
    X11HotKeyTest() {
        EXPECT_EQ(m_key.installHandler([this] { ++m_pressed; }), 0);
    }
    ~X11HotKeyTest() override {
        // A keyboard that a test changed goes back, and no key stays down or locked.
        (void)tests::run(QStringLiteral("setxkbmap -layout us -option"));
    }

    void registerKey() { ASSERT_EQ(m_key.registerKey().registration, Registration::Registered); }
    void type(const QString& keys) {
        ASSERT_TRUE(tests::run(QStringLiteral("xdotool ") + keys));
        catchUp(m_connection);
        m_time.settle();
    }
    void press() { type(QStringLiteral("key alt+super+b")); }

    fakes::VirtualTime m_time;
    X11Connection m_connection;
    X11HotKey m_key{m_connection, m_time};
    int m_pressed = 0;
};

bool lockIsOn(const QString& name) {
    const QString text = tests::outputOf(QStringLiteral("xset q"));
    const qsizetype at = text.indexOf(name + QLatin1Char(':'));
    return at >= 0 && text.mid(at, 24).contains(QStringLiteral(" on"));
}

TEST_F(X11HotKeyTest, EachPressIsHeardOnce) {
    registerKey();
    press();
    EXPECT_EQ(m_pressed, 1);
    press();
    EXPECT_EQ(m_pressed, 2);
}

TEST_F(X11HotKeyTest, PressReachesTheHandlerAfterTheEventsHandlerHasReturned) {
    registerKey();
    ASSERT_TRUE(tests::run(QStringLiteral("xdotool key alt+super+b")));
    catchUp(m_connection);
    EXPECT_EQ(m_pressed, 0);
    m_time.settle();
    EXPECT_EQ(m_pressed, 1);
}

TEST_F(X11HotKeyTest, HeldDownIsOnePress) {
    ASSERT_TRUE(tests::run(QStringLiteral("xset r rate 150 50")));
    registerKey();
    int repetitions = 0;
    const auto counter = m_connection.subscribe(XCB_KEY_PRESS, [&](const auto&) { ++repetitions; });
    type(QStringLiteral("keydown alt keydown super keydown b"));
    EXPECT_TRUE(tests::await([&] { return repetitions > 5; }));
    type(QStringLiteral("keyup b keyup super keyup alt"));
    ASSERT_TRUE(tests::run(QStringLiteral("xset r rate")));
    EXPECT_EQ(m_pressed, 1);
    press();
    EXPECT_EQ(m_pressed, 2);
}

TEST_F(X11HotKeyTest, LettingGoOfTheModifiersFirstMakesNoSecondPress) {
    ASSERT_TRUE(tests::run(QStringLiteral("xset r rate 150 50")));
    registerKey();
    int repetitions = 0;
    const auto counter = m_connection.subscribe(XCB_KEY_PRESS, [&](const auto&) { ++repetitions; });
    type(QStringLiteral("keydown alt keydown super keydown b keyup super keyup alt"));
    EXPECT_TRUE(tests::await([&] { return repetitions > 5; }));
    type(QStringLiteral("keydown alt keydown super"));
    EXPECT_TRUE(tests::await([&] { return repetitions > 10; }));
    type(QStringLiteral("keyup b keyup super keyup alt"));
    ASSERT_TRUE(tests::run(QStringLiteral("xset r rate")));
    EXPECT_EQ(m_pressed, 1);
}

TEST_F(X11HotKeyTest, LockKeysMakeNoDifference) {
    registerKey();
    type(QStringLiteral("key Caps_Lock"));
    ASSERT_TRUE(lockIsOn(QStringLiteral("Caps Lock")));
    press();
    EXPECT_EQ(m_pressed, 1) << "with Caps Lock";
    type(QStringLiteral("key Num_Lock"));
    ASSERT_TRUE(lockIsOn(QStringLiteral("Num Lock")));
    press();
    EXPECT_EQ(m_pressed, 2) << "with both";
    type(QStringLiteral("key Caps_Lock"));
    press();
    EXPECT_EQ(m_pressed, 3) << "with Num Lock";
    type(QStringLiteral("key Num_Lock"));
    ASSERT_FALSE(lockIsOn(QStringLiteral("Caps Lock")));
    ASSERT_FALSE(lockIsOn(QStringLiteral("Num Lock")));
}

TEST_F(X11HotKeyTest, OtherCombinationsAreNotOurs) {
    registerKey();
    type(QStringLiteral("key b alt+b super+b alt+super+c alt+super+shift+b alt+super+ctrl+b"));
    EXPECT_EQ(m_pressed, 0);
}

TEST_F(X11HotKeyTest, OtherKeysWhileItIsHeldAreNotOurs) {
    registerKey();
    type(QStringLiteral("keydown alt keydown super keydown b key c key d "
                        "keyup b keyup super keyup alt"));
    EXPECT_EQ(m_pressed, 1);
}

TEST_F(X11HotKeyTest, WindowWithTheKeyboardDoesNotKeepThePressFromUs) {
    QProcess terminal;
    terminal.start(QStringLiteral("xterm"), {});
    ASSERT_TRUE(tests::await([] {
        return !tests::outputOf(QStringLiteral("xdotool search --onlyvisible --class xterm"))
                    .isEmpty();
    }));
    registerKey();
    press();
    EXPECT_EQ(m_pressed, 1);
    terminal.kill();
    terminal.waitForFinished();
}

TEST_F(X11HotKeyTest, CombinationThatAnotherProgramHoldsIsToldApart) {
    X11Connection otherConnection;
    X11HotKey other(otherConnection, m_time);
    ASSERT_EQ(other.registerKey().registration, Registration::Registered);

    EXPECT_EQ(m_key.registerKey().registration, Registration::HeldByAnother);
    press();
    EXPECT_EQ(m_pressed, 0);

    other.unregisterKey();
    EXPECT_EQ(m_key.registerKey().registration, Registration::Registered);
    press();
    EXPECT_EQ(m_pressed, 1);
}

TEST_F(X11HotKeyTest, CombinationHeldInOneLockStateIsTakenInNone) {
    X11Connection other;
    ASSERT_EQ(other.check(xcb_grab_key_checked(other.xcb(), 0, other.root(),
                                               XCB_MOD_MASK_1 | XCB_MOD_MASK_4 | XCB_MOD_MASK_LOCK |
                                                   XCB_MOD_MASK_2,
                                               56, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC)),
              0);
    EXPECT_EQ(m_key.registerKey().registration, Registration::HeldByAnother);
    press();
    EXPECT_EQ(m_pressed, 0);
}

TEST_F(X11HotKeyTest, CombinationIsFreeAfterUnregistering) {
    registerKey();
    m_key.unregisterKey();
    press();
    EXPECT_EQ(m_pressed, 0);

    X11Connection otherConnection;
    X11HotKey other(otherConnection, m_time);
    EXPECT_EQ(other.registerKey().registration, Registration::Registered);
}

TEST_F(X11HotKeyTest, PressOnItsWayIsDroppedWithTheHandler) {
    registerKey();
    ASSERT_TRUE(tests::run(QStringLiteral("xdotool key alt+super+b")));
    catchUp(m_connection);
    m_key.removeHandler();
    m_time.settle();
    EXPECT_EQ(m_pressed, 0);
}

TEST_F(X11HotKeyTest, RegisteringTwiceIsRegisteringOnce) {
    registerKey();
    registerKey();
    press();
    EXPECT_EQ(m_pressed, 1);
}

TEST_F(X11HotKeyTest, CombinationMovesWithTheKeyboardLayout) {
    registerKey();
    ASSERT_TRUE(tests::run(QStringLiteral("setxkbmap dvorak"))); // has the b where "n" is engraved
    catchUp(m_connection);
    type(QStringLiteral("keydown alt keydown super key 56 keyup super keyup alt"));
    EXPECT_EQ(m_pressed, 0);
    type(QStringLiteral("keydown alt keydown super key 57 keyup super keyup alt"));
    EXPECT_EQ(m_pressed, 1);
    ASSERT_TRUE(tests::run(QStringLiteral("setxkbmap us")));
    catchUp(m_connection);
    press();
    EXPECT_EQ(m_pressed, 2);
}

TEST_F(X11HotKeyTest, LossByTheKeyboardMapAndReturnAreTold) {
    std::vector<HotKeyPort::Outcome> told;
    m_key.onOutcomeChanged = [&](const auto& outcome) { told.push_back(outcome); };
    registerKey();
    ASSERT_TRUE(tests::run(QStringLiteral("xmodmap -e \"clear mod4\"")));
    catchUp(m_connection);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0], (HotKeyPort::Outcome{Registration::Failed, X11HotKey::kNoSuchKey}));
    ASSERT_TRUE(tests::run(QStringLiteral("xmodmap -e \"add mod4 = Super_L\"")));
    catchUp(m_connection);
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[1], (HotKeyPort::Outcome{Registration::Registered, 0}));
    press();
    EXPECT_EQ(m_pressed, 1);
}

TEST_F(X11HotKeyTest, KeyThatAnotherProgramHoldsAtItsNewPlaceIsTakenOnceItIsFree) {
    std::vector<HotKeyPort::Outcome> told;
    m_key.onOutcomeChanged = [&](const auto& outcome) { told.push_back(outcome); };
    registerKey();
    X11Connection other;
    constexpr xcb_keycode_t kPlaceOnDvorak = 57;
    ASSERT_EQ(other.check(xcb_grab_key_checked(other.xcb(), 0, other.root(),
                                               XCB_MOD_MASK_1 | XCB_MOD_MASK_4, kPlaceOnDvorak,
                                               XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC)),
              0);
    ASSERT_TRUE(tests::run(QStringLiteral("setxkbmap dvorak")));
    catchUp(m_connection);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0], (HotKeyPort::Outcome{Registration::HeldByAnother, 0}));

    m_time.advance(30);
    EXPECT_EQ(told.size(), 1U) << "the same once more is nothing new";
    ASSERT_EQ(other.check(xcb_ungrab_key_checked(other.xcb(), XCB_GRAB_ANY, other.root(),
                                                 XCB_MOD_MASK_ANY)),
              0);
    m_time.advance(15);
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[1], (HotKeyPort::Outcome{Registration::Registered, 0}));
    type(QStringLiteral("keydown alt keydown super key 57 keyup super keyup alt"));
    EXPECT_EQ(m_pressed, 1);
    EXPECT_EQ(m_time.timerCount(), 0U);
}

TEST_F(X11HotKeyTest, LayoutWithoutTheLetterUsesItsPlace) {
    ASSERT_TRUE(tests::run(QStringLiteral("setxkbmap gr")));
    registerKey();
    type(QStringLiteral("keydown alt keydown super key 56 keyup super keyup alt"));
    EXPECT_EQ(m_pressed, 1);
}

TEST_F(X11HotKeyTest, KeyboardWithoutTheModifiersIsAFailureOfItsOwn) {
    ASSERT_TRUE(tests::run(QStringLiteral("xmodmap -e \"clear mod4\"")));
    const auto outcome = m_key.registerKey();
    EXPECT_EQ(outcome.registration, Registration::Failed);
    EXPECT_EQ(outcome.status, X11HotKey::kNoSuchKey);
}

TEST(X11HotKey, HasAStatusWithoutAServer) {
    fakes::VirtualTime time;
    X11Connection connection(":4711");
    X11HotKey key(connection, time);
    EXPECT_NE(key.installHandler([] {}), 0);
    const auto outcome = key.registerKey();
    EXPECT_EQ(outcome.registration, Registration::Failed);
    EXPECT_EQ(outcome.status, X11HotKey::kNoConnection);
}

} // namespace
} // namespace vantle
