// The scheduler over Qt's event loop, on real timers of a few milliseconds.
#include "base/Scheduler.h"
#include "support/Await.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QThread>

#include <gmock/gmock.h>

#include <limits>
#include <thread>
#include <vector>

namespace vantle {
namespace {

using namespace std::chrono_literals;

class QtSchedulerTest : public testing::Test {
protected:
    /// Lets a few milliseconds of timers pass.
    void letTimePass() {
        bool passed = false;
        const TimerHandle timer = m_scheduler.scheduleOnce(20ms, [&] { passed = true; });
        EXPECT_TRUE(tests::await([&] { return passed; }));
    }

    QtScheduler m_scheduler;
};

TEST_F(QtSchedulerTest, FiresOnceAfterTheDelay) {
    QElapsedTimer clock;
    clock.start();
    int fired = 0;
    const TimerHandle timer = m_scheduler.scheduleOnce(10ms, [&] { ++fired; });
    EXPECT_EQ(fired, 0);
    EXPECT_TRUE(tests::await([&] { return fired > 0; }));
    EXPECT_GE(clock.elapsed(), 10);
    letTimePass();
    EXPECT_EQ(fired, 1);
}

TEST_F(QtSchedulerTest, FiresInOrderOfDelay) {
    std::vector<int> order;
    const TimerHandle late = m_scheduler.scheduleOnce(12ms, [&] { order.push_back(2); });
    const TimerHandle early = m_scheduler.scheduleOnce(2ms, [&] { order.push_back(1); });
    EXPECT_TRUE(tests::await([&] { return order.size() == 2; }));
    EXPECT_EQ(order, (std::vector{1, 2}));
}

TEST_F(QtSchedulerTest, TakesADelayThatIsOverAsNone) {
    bool fired = false;
    const TimerHandle timer = m_scheduler.scheduleOnce(Seconds(-3), [&] { fired = true; });
    EXPECT_FALSE(fired) << "later all the same";
    EXPECT_TRUE(tests::await([&] { return fired; }));
}

TEST_F(QtSchedulerTest, DoesNotFireAtOnceForADelayTooLongToCount) {
    bool fired = false;
    const TimerHandle month =
        m_scheduler.scheduleOnce(Seconds(30 * 86400.0), [&] { fired = true; });
    const TimerHandle never = m_scheduler.scheduleOnce(
        Seconds(std::numeric_limits<double>::infinity()), [&] { fired = true; });
    letTimePass();
    EXPECT_FALSE(fired);
}

TEST_F(QtSchedulerTest, RepeatsUntilTheHandleIsDestroyed) {
    int fired = 0;
    TimerHandle timer = m_scheduler.scheduleRepeatingTimer(2ms, Seconds::zero(), [&] { ++fired; });
    EXPECT_TRUE(tests::await([&] { return fired >= 3; }));
    timer.reset();
    const int atTheEnd = fired;
    letTimePass();
    EXPECT_EQ(fired, atTheEnd);
}

TEST_F(QtSchedulerTest, RepeatsNoEarlierThanTheToleranceAllows) {
    QElapsedTimer clock;
    clock.start();
    int fired = 0;
    const TimerHandle timer = m_scheduler.scheduleRepeatingTimer(40ms, 4ms, [&] { ++fired; });
    EXPECT_TRUE(tests::await([&] { return fired >= 2; }));
    EXPECT_GE(clock.elapsed(), 2 * 36);
}

TEST_F(QtSchedulerTest, DoesNotFireWhenTheHandleIsDestroyedBefore) {
    bool fired = false;
    TimerHandle timer = m_scheduler.scheduleOnce(1ms, [&] { fired = true; });
    timer.reset();
    letTimePass();
    EXPECT_FALSE(fired);
}

TEST_F(QtSchedulerTest, ACallbackMayDestroyItsOwnTimer) {
    int fired = 0;
    TimerHandle timer;
    const auto witness = std::make_shared<int>(0);
    timer = m_scheduler.scheduleRepeatingTimer(1ms, Seconds::zero(), [&, witness] {
        timer.reset();
        ++*witness; // what the callback holds must outlive it
        ++fired;
    });
    EXPECT_TRUE(tests::await([&] { return fired > 0; }));
    letTimePass();
    EXPECT_EQ(fired, 1);
    EXPECT_EQ(witness.use_count(), 1) << "and is let go afterwards";
}

TEST_F(QtSchedulerTest, ACallbackMayReplaceItsOwnTimer) {
    std::vector<int> order;
    TimerHandle timer;
    timer = m_scheduler.scheduleOnce(1ms, [&] {
        order.push_back(1);
        timer = m_scheduler.scheduleOnce(1ms, [&] { order.push_back(2); });
    });
    EXPECT_TRUE(tests::await([&] { return order.size() == 2; }));
    EXPECT_EQ(order, (std::vector{1, 2}));
}

TEST_F(QtSchedulerTest, FiresInsideANestedEventLoop) {
    QEventLoop nested;
    const TimerHandle timer = m_scheduler.scheduleOnce(1ms, [&] { nested.quit(); });
    bool tooLate = false;
    const TimerHandle deadline = m_scheduler.scheduleOnce(10s, [&] {
        tooLate = true;
        nested.quit();
    });
    nested.exec();
    EXPECT_FALSE(tooLate);
}

TEST_F(QtSchedulerTest, RunsPostedWorkLaterAndInOrder) {
    std::vector<int> order;
    m_scheduler.post([&] {
        order.push_back(1);
        m_scheduler.post([&] { order.push_back(3); });
    });
    m_scheduler.post([&] { order.push_back(2); });
    EXPECT_TRUE(order.empty());
    EXPECT_TRUE(tests::await([&] { return order.size() == 3; }));
    EXPECT_EQ(order, (std::vector{1, 2, 3}));
}

TEST_F(QtSchedulerTest, RunsWorkThatOtherThreadsPostOnTheMainThread) {
    QThread* ranOn = nullptr;
    std::thread([&] { m_scheduler.post([&] { ranOn = QThread::currentThread(); }); }).join();
    EXPECT_TRUE(tests::await([&] { return ranOn != nullptr; }));
    EXPECT_EQ(ranOn, QCoreApplication::instance()->thread());
}

TEST_F(QtSchedulerTest, PostedWorkDiesWithTheScheduler) {
    bool ran = false;
    {
        QtScheduler scheduler;
        scheduler.post([&] { ran = true; });
    }
    letTimePass();
    EXPECT_FALSE(ran);
}

} // namespace
} // namespace vantle
