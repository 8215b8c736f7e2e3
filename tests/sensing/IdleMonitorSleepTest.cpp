// What the idle monitor makes of time in which the machine slept or the program was stopped.
#include "sensing/IdleMonitorWorld.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class IdleMonitorSleepTest : public IdleMonitorTest {};

TEST_F(IdleMonitorSleepTest, CountsTheSleepOfTheMachineAsAbsence) {
    source.growFrom(0);
    monitor->start();
    time.suspend(3600);
    time.advance(IdleMonitor::pollInterval);
    EXPECT_THAT(takeCalls(), ElementsAre("away 3610"));
    source.touch();
    time.advance(IdleMonitor::pollInterval);
    EXPECT_THAT(takeCalls(), ElementsAre("back"));
}

TEST_F(IdleMonitorSleepTest, LeavesWorkAfterTheSleepAlone) {
    source.growFrom(4);
    monitor->start();
    time.suspend(3600);
    source.fix(0.25);
    time.advance(IdleMonitor::pollInterval);
    EXPECT_THAT(takeCalls(), IsEmpty()) << "the tracker has cut the sleep out to the second";
}

TEST_F(IdleMonitorSleepTest, ConfirmsNoStretchInWhichTheMachineSlept) {
    monitor->start();
    workFor(20 * 60);
    time.suspend(20 * 60);
    EXPECT_FALSE(monitor->wasActiveForLast(1)) << "before any reading";
    workFor(5 * 60);
    EXPECT_TRUE(monitor->wasActiveForLast(4));
    for (const int minutes : {5, 10, 24, 25, 30, 44})
        EXPECT_FALSE(monitor->wasActiveForLast(minutes)) << minutes;
}

TEST_F(IdleMonitorSleepTest, ConfirmsNoStretchInWhichTheProgramWasStopped) {
    monitor->start();
    workFor(20 * 60);
    time.freeze(170);
    workFor(5 * 60);
    EXPECT_FALSE(monitor->wasActiveForLast(6));
    EXPECT_TRUE(monitor->wasActiveForLast(4));
}

} // namespace
} // namespace vantle
