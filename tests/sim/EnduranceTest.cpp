// Two days and a thousand sessions leave nothing behind: no timer, no memory, no file.
#include "app/ModelWorld.h"

#include <gtest/gtest.h>

#include <malloc.h>

namespace vantle::tests {
namespace {

constexpr double kOneHour = 3600.0;

class EnduranceTest : public testing::Test {
protected:
    EnduranceTest() { world.launch(); }

    void work(double seconds) {
        for (; seconds > 0; seconds -= 60) {
            world.idleSource.touch();
            world.time.advance(60);
        }
    }

    void workHours(int count) {
        for (; count > 0; --count) {
            work(kOneHour);
            world.files.forgetCalls();
            world.told.calls.clear();
        }
    }

    void playSessions(int count) {
        for (int number = 0; number < count; ++number) {
            world.press();
            work(120);
            world.press();
            if (const auto close = std::exchange(world.told.closeSummary, nullptr))
                close(QStringLiteral("note"));
            world.time.advance(5);
            if (number % 50 == 0) forgetTheUsual();
        }
        forgetTheUsual();
    }

    /// What is meant to grow: the log, and what the fakes noted.
    void forgetTheUsual() {
        ASSERT_TRUE(world.disk.remove(ModelWorld::file("sessions.jsonl")));
        world.files.forgetCalls();
        world.told.calls.clear();
    }

    /// Bytes of the heap in use. Sanitizers have a heap of their own, of which nothing is told.
    [[nodiscard]] static double heap() { return double(mallinfo2().uordblks); }

    ModelWorld world;
};

TEST_F(EnduranceTest, AThousandSessionsLeaveNoTimerAndNoMemoryBehind) {
    playSessions(400); // until every container has its size
    const std::size_t timers = world.time.timerCount();
    const QStringList files = world.disk.paths();
    const double before = heap();
    playSessions(1000);
    EXPECT_EQ(world.time.timerCount(), timers);
    EXPECT_EQ(world.disk.paths(), files);
    EXPECT_LT(heap() - before, 8'000) << "8 bytes a session";
}

TEST_F(EnduranceTest, TwoDaysOfWorkLeaveNoTimerAndNoMemoryBehind) {
    world.press();
    workHours(1);
    const std::size_t timers = world.time.timerCount();
    const QStringList files = world.disk.paths();
    const double before = heap();
    for (int day = 0; day < 2; ++day) {
        workHours(14);
        world.time.advance(2 * kOneHour); // away, and back
        workHours(4);
        world.screens.sleep();
        world.time.suspend(4 * kOneHour);
        world.screens.wake();
        world.idleSource.touch();
        world.settle();
    }
    workHours(1);
    EXPECT_EQ(world.time.timerCount(), timers);
    EXPECT_EQ(world.disk.paths(), files);
    EXPECT_LT(heap() - before, 8'000);
    EXPECT_EQ(world.model->tracker().state(), TrackerCore::State::Running);
}

} // namespace
} // namespace vantle::tests
