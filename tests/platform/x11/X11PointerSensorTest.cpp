// Parts of the screen that are watched, on a real X server with a pointer that another client
// moves.
#include "platform/x11/X11PointerSensor.h"

#include "support/Await.h"

#include <QMouseEvent>
#include <QWindow>

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <utility>

namespace vantle::tests {
namespace {

constexpr QRect kPart(600, 0, 230, 10);
constexpr int kLongerThanARest = 700; // ms, that of X11RestSensor and what it looks after

/// Over the part and below it, as a full-screen application is.
class WindowBelow final : public QWindow {
public:
    WindowBelow() {
        setFlags(Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
        setGeometry(400, 0, 600, 300);
        show();
        EXPECT_TRUE(await([this] { return isExposed(); }));
    }
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++presses; }
};

/// Counts what is planned.
class CountingScheduler final : public Scheduler {
public:
    TimerHandle scheduleRepeatingTimer(Seconds every, Seconds tolerance,
                                       std::function<void()> work) override {
        return m_real.scheduleRepeatingTimer(every, tolerance, std::move(work));
    }
    TimerHandle scheduleOnce(Seconds delay, std::function<void()> work) override {
        ++planned;
        return m_real.scheduleOnce(delay, std::move(work));
    }
    void post(std::function<void()> work) override { m_real.post(std::move(work)); }

    int planned = 0;

private:
    QtScheduler m_real;
};

class X11PointerSensorTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(x11.isAlive());
        idle = X11PointerIdle::of(x11, presses);
        ASSERT_TRUE(idle);
        moveTo({300, 500});
    }
    [[nodiscard]] std::unique_ptr<PointerSensor> sense() {
        auto sensor = std::make_unique<X11RestSensor>(x11, scheduler, presses, *idle, kPart,
                                                      [this] { ++rested; });
        runFor(kLongerThanARest);
        return sensor;
    }
    static void moveTo(QPoint place) { tool("mousemove", place); }
    static void tool(const char* command, QPoint place, const char* then = "") {
        ASSERT_TRUE(run(QStringLiteral("xdotool %1 %2 %3 %4")
                            .arg(QLatin1String(command))
                            .arg(place.x())
                            .arg(place.y())
                            .arg(QLatin1String(then))));
    }

    X11Connection x11;
    CountingScheduler scheduler;
    X11RawPresses presses{x11};
    std::optional<X11PointerIdle> idle;
    int rested = 0;
};

TEST_F(X11PointerSensorTest, APressAtTheArrivalReachesTheWindowBelow) {
    WindowBelow below;
    const auto sensor = sense();
    for (int i = 1; i <= 5; ++i) {
        moveTo({300, 500});
        tool("mousemove", {700, 5}, "click 1");
        EXPECT_TRUE(await([&] { return below.presses == i; }));
    }
}

TEST_F(X11PointerSensorTest, APointerThatPressedThereIsNotAtRestUntilItComesBack) {
    WindowBelow below;
    const auto sensor = sense();
    tool("mousemove", {700, 5}, "click 1");
    runFor(2 * kLongerThanARest);
    tool("mousemove", {705, 5});
    runFor(2 * kLongerThanARest);
    EXPECT_EQ(rested, 0);
    moveTo({300, 500});
    runFor(kLongerThanARest);
    moveTo({700, 5});
    EXPECT_TRUE(await([&] { return rested == 1; }));
}

TEST_F(X11PointerSensorTest, ThePointerOfAMenuOrALockedScreenDoesNotRest) {
    X11Connection other;
    const auto grab = other.reply<xcb_grab_pointer_reply>(xcb_grab_pointer(
        other.xcb(), 0, other.root(), XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC,
        XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME));
    ASSERT_TRUE(grab);
    ASSERT_EQ(grab->status, XCB_GRAB_STATUS_SUCCESS);
    const auto sensor = sense();
    moveTo({700, 5});
    runFor(2 * kLongerThanARest);
    EXPECT_EQ(rested, 0);
    xcb_ungrab_pointer(other.xcb(), XCB_CURRENT_TIME);
    other.flush();
    moveTo({701, 5});
    EXPECT_TRUE(await([&] { return rested == 1; }));
}

TEST_F(X11PointerSensorTest, ThePointerIsNeverTakenFromTheWindowBelow) {
    X11Connection other;
    const xcb_window_t below = xcb_generate_id(other.xcb());
    int taken = 0;
    const auto leaving =
        other.subscribe(XCB_LEAVE_NOTIFY, [&taken](const xcb_generic_event_t& event) {
            const auto& leave = reinterpret_cast<const xcb_leave_notify_event_t&>(event);
            if (leave.mode == XCB_NOTIFY_MODE_GRAB) ++taken;
        });
    const std::array<std::uint32_t, 2> values = {1, XCB_EVENT_MASK_LEAVE_WINDOW};
    xcb_create_window(other.xcb(), XCB_COPY_FROM_PARENT, below, other.root(), 400, 0, 600, 300, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values.data());
    xcb_map_window(other.xcb(), below);
    other.flush();
    const auto sensor = sense();
    moveTo({700, 5});
    EXPECT_TRUE(await([&] { return rested == 1; }));
    runFor(kLongerThanARest);
    EXPECT_EQ(taken, 0) << "a press in that moment would be lost";
}

TEST_F(X11PointerSensorTest, APointerThatMovesElsewhereIsLookedAtAFewTimesASecond) {
    const auto sensor = sense();
    scheduler.planned = 0;
    runFor(1000);
    EXPECT_EQ(scheduler.planned, 0) << "at rest";
    QProcess mouse;
    mouse.start(QStringLiteral("sh"),
                {QStringLiteral("-c"),
                 QStringLiteral("xdotool $(for i in $(seq 100); do echo mousemove_relative 1 1 "
                                "sleep 0.01 mousemove_relative -- -1 -1 sleep 0.01; done)")});
    runFor(2000);
    EXPECT_GE(scheduler.planned, 3);
    EXPECT_LE(scheduler.planned, 12) << "of some 200 movements";
    mouse.waitForFinished();
}

TEST_F(X11PointerSensorTest, AWindowInItsPlaceTellsOfEachArrivalAndTakesThePress) {
    WindowBelow below;
    int entered = 0;
    const X11WindowSensor sensor(x11, kPart, [&] { ++entered; });
    moveTo({700, 5});
    EXPECT_TRUE(await([&] { return entered == 1; }));
    moveTo({500, 5});
    moveTo({700, 5});
    EXPECT_TRUE(await([&] { return entered == 2; }));
    tool("mousemove", {700, 5}, "click 1");
    tool("mousemove", {500, 5}, "click 1");
    EXPECT_TRUE(await([&] { return below.presses > 0; }));
    EXPECT_EQ(below.presses, 1) << "that beside the part";
}

TEST(X11PointerIdle, WithoutAServerThereIsNone) {
    X11Connection nowhere(":no-such-server");
    X11RawPresses presses(nowhere);
    EXPECT_FALSE(X11PointerIdle::of(nowhere, presses));
}

} // namespace
} // namespace vantle::tests
