// The virtual time that most other tests stand on.
#include "fakes/VirtualTime.h"

#include <gmock/gmock.h>

#include <vector>

namespace vantle::fakes {
namespace {

class VirtualTimeTest : public testing::Test {
protected:
    [[nodiscard]] std::function<void()> note(int what) {
        return [this, what] { m_order.push_back(what); };
    }
    [[nodiscard]] double elapsed() const { return (m_time.now() - m_start).count(); }

    VirtualTime m_time;
    const Date m_start = m_time.now();
    std::vector<int> m_order;
};

TEST_F(VirtualTimeTest, MovesBothClocksOn) {
    m_time.advance(90.5);
    EXPECT_EQ(elapsed(), 90.5);
    EXPECT_EQ(m_time.timerClock(), 90.5);
}

TEST_F(VirtualTimeTest, FiresInOrderOfDueTimeAndThenOfMaking) {
    const TimerHandle late = m_time.scheduleOnce(Seconds(3), note(3));
    const TimerHandle early = m_time.scheduleOnce(Seconds(1), note(1));
    const TimerHandle sameTime = m_time.scheduleOnce(Seconds(1), note(2));
    m_time.advance(2);
    EXPECT_EQ(m_order, (std::vector{1, 2}));
    m_time.advance(1);
    EXPECT_EQ(m_order, (std::vector{1, 2, 3})) << "what is due at the end fires as well";
    m_time.advance(10);
    EXPECT_EQ(m_order.size(), 3U);
    EXPECT_EQ(m_time.timerCount(), 0U);
}

TEST_F(VirtualTimeTest, ShowsTheClockAtTheMomentOfEachCall) {
    std::vector<double> moments;
    const TimerHandle timer = m_time.scheduleRepeatingTimer(Seconds(10), Seconds(1),
                                                            [&] { moments.push_back(elapsed()); });
    m_time.advance(35);
    EXPECT_EQ(moments, (std::vector{10.0, 20.0, 30.0}));
    EXPECT_EQ(elapsed(), 35.0);
}

TEST_F(VirtualTimeTest, RepeatsWithoutDrift) {
    int fired = 0;
    const TimerHandle timer =
        m_time.scheduleRepeatingTimer(Seconds(0.1), Seconds::zero(), [&] { ++fired; });
    for (int i = 0; i < 3600; ++i)
        m_time.advance(1);
    EXPECT_EQ(fired, 36000);
}

TEST_F(VirtualTimeTest, CountsTheRepeatingTimersOfAnInterval) {
    const TimerHandle tick = m_time.scheduleRepeatingTimer(Seconds(1), Seconds::zero(), [] {});
    TimerHandle poll = m_time.scheduleRepeatingTimer(Seconds(10), Seconds::zero(), [] {});
    const TimerHandle once = m_time.scheduleOnce(Seconds(10), [] {});
    EXPECT_EQ(m_time.timerCount(), 3U);
    EXPECT_EQ(m_time.repeatingTimers(10), 1U);
    poll.reset();
    EXPECT_EQ(m_time.repeatingTimers(10), 0U);
}

TEST_F(VirtualTimeTest, FiresNothingWhoseHandleIsGone) {
    TimerHandle timer = m_time.scheduleOnce(Seconds(1), note(1));
    timer.reset();
    m_time.advance(2);
    EXPECT_TRUE(m_order.empty());
}

TEST_F(VirtualTimeTest, ACallbackMayDestroyOrReplaceItsOwnTimer) {
    TimerHandle repeating;
    repeating = m_time.scheduleRepeatingTimer(Seconds(1), Seconds::zero(), [&] {
        m_order.push_back(1);
        repeating.reset();
    });
    TimerHandle once;
    once = m_time.scheduleOnce(Seconds(1), [&] {
        m_order.push_back(2);
        once = m_time.scheduleOnce(Seconds(1), note(3));
    });
    m_time.advance(10);
    EXPECT_EQ(m_order, (std::vector{1, 2, 3}));
}

TEST_F(VirtualTimeTest, FiresWithinTheSameAdvanceWhatACallbackMakes) {
    TimerHandle inner;
    const TimerHandle outer = m_time.scheduleOnce(Seconds(1), [&] {
        inner = m_time.scheduleOnce(Seconds(1), [&] { EXPECT_EQ(elapsed(), 2.0); });
        m_order.push_back(1);
    });
    m_time.advance(2);
    EXPECT_EQ(m_order, std::vector{1});
    EXPECT_EQ(m_time.timerCount(), 0U);
}

TEST_F(VirtualTimeTest, ShiftsTheWallClockWithoutMovingTimers) {
    const TimerHandle timer = m_time.scheduleOnce(Seconds(10), note(1));
    m_time.shiftWall(3600);
    EXPECT_EQ(elapsed(), 3600.0);
    m_time.advance(9);
    EXPECT_TRUE(m_order.empty());
    m_time.shiftWall(-7200);
    m_time.advance(1);
    EXPECT_EQ(m_order, std::vector{1});
    EXPECT_EQ(elapsed(), -3590.0);
}

TEST_F(VirtualTimeTest, SleepOfTheMachineMovesNoTimer) {
    const TimerHandle timer = m_time.scheduleOnce(Seconds(10), note(1));
    m_time.advance(4);
    m_time.suspend(3600);
    EXPECT_EQ(elapsed(), 3604.0);
    EXPECT_EQ(m_time.uptime().total, Seconds(3604));
    EXPECT_EQ(m_time.uptime().awake, Seconds(4));
    m_time.advance(5);
    EXPECT_TRUE(m_order.empty());
    m_time.advance(1);
    EXPECT_EQ(m_order, std::vector{1});
}

TEST_F(VirtualTimeTest, StoppedProgramFiresEachTimerOnceWhenItRunsAgain) {
    const TimerHandle tick = m_time.scheduleRepeatingTimer(Seconds(1), Seconds::zero(), note(1));
    const TimerHandle once = m_time.scheduleOnce(Seconds(5), note(2));
    const TimerHandle later = m_time.scheduleOnce(Seconds(62), note(3));
    m_time.freeze(60);
    EXPECT_TRUE(m_order.empty());
    EXPECT_EQ(m_time.uptime().awake, Seconds(60));
    EXPECT_EQ(elapsed(), 60.0);
    m_time.advance(0);
    EXPECT_EQ(m_order, (std::vector{1, 2}));
    m_time.advance(2);
    EXPECT_EQ(m_order, (std::vector{1, 2, 1, 1, 3}));
}

TEST_F(VirtualTimeTest, KeepsAShiftThatACallbackMakes) {
    const TimerHandle timer = m_time.scheduleOnce(Seconds(1), [&] { m_time.shiftWall(100); });
    double seen = 0;
    const TimerHandle later = m_time.scheduleOnce(Seconds(2), [&] { seen = elapsed(); });
    m_time.advance(5);
    EXPECT_EQ(seen, 102.0);
    EXPECT_EQ(elapsed(), 105.0);
}

TEST_F(VirtualTimeTest, RunsPostedWorkInOrderWhenItSettles) {
    m_time.post([&] {
        m_order.push_back(1);
        m_time.post(note(3));
    });
    m_time.post(note(2));
    EXPECT_TRUE(m_order.empty());
    m_time.settle();
    EXPECT_EQ(m_order, (std::vector{1, 2, 3}));
}

TEST_F(VirtualTimeTest, RunsQueuesBeforePostedWorkAfterEachTimer) {
    ManualQueue queue;
    m_time.attach(queue);
    const TimerHandle timer = m_time.scheduleRepeatingTimer(Seconds(1), Seconds::zero(), [&] {
        m_time.post(note(2));
        queue.async([&] {
            m_order.push_back(1);
            m_time.post(note(3));
        });
    });
    m_time.advance(2);
    EXPECT_EQ(m_order, (std::vector{1, 2, 3, 1, 2, 3}));
}

TEST(ManualQueue, RunsJobsOnlyOnRequest) {
    ManualQueue queue;
    std::vector<int> order;
    queue.async([&] { order.push_back(1); });
    EXPECT_TRUE(order.empty());
    EXPECT_FALSE(queue.empty());
    queue.sync([&] { order.push_back(2); });
    EXPECT_EQ(order, (std::vector{1, 2}));
    EXPECT_TRUE(queue.empty());
}

TEST(ManualQueue, RunsWhatAJobQueues) {
    ManualQueue queue;
    int ran = 0;
    queue.async([&] { queue.async([&] { ++ran; }); });
    queue.drain();
    EXPECT_EQ(ran, 1);
}

TEST(ManualQueue, ForgetsWhatIsQueuedAsAKillDoes) {
    ManualQueue queue;
    bool ran = false;
    queue.async([&] { ran = true; });
    queue.dropAll();
    queue.drain();
    EXPECT_FALSE(ran);
}

} // namespace
} // namespace vantle::fakes
