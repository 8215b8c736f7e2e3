// What the idle monitor makes of screens that sleep, wake and are locked.
#include "sensing/IdleMonitorWorld.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class IdleMonitorScreensTest : public IdleMonitorTest {};

TEST_F(IdleMonitorScreensTest, CountsTheUserAsAwayWhenTheScreensSleep) {
    monitor->start();
    screens.sleep();
    EXPECT_THAT(takeCalls(), ElementsAre("screens slept"));
    EXPECT_TRUE(monitor->isIdle());
    EXPECT_EQ(monitor->sampleCount(), 2U);
}

TEST_F(IdleMonitorScreensTest, ReadsAtOnceWhenTheScreensWake) {
    monitor->start();
    screens.sleep();
    takeCalls();
    source.fix(0.25);
    screens.wake();
    EXPECT_THAT(takeCalls(), ElementsAre("back", "screens woke"));
    EXPECT_FALSE(monitor->isIdle());
}

TEST_F(IdleMonitorScreensTest, TellsOfAReturnAndANewAbsenceWhenTheScreensWakeByThemselves) {
    source.growFrom(0);
    monitor->start();
    screens.sleep();
    takeCalls();
    source.growFrom(600);
    screens.wake();
    EXPECT_THAT(takeCalls(), ElementsAre("back", "away 600"));
    EXPECT_TRUE(monitor->isIdle());
    time.advance(60);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(IdleMonitorScreensTest, TreatsThePollAfterASleepAsAReturnWithOrWithoutInput) {
    source.fix(5);
    monitor->start();
    screens.sleep();
    takeCalls();
    time.advance(IdleMonitor::pollInterval);
    EXPECT_THAT(takeCalls(), ElementsAre("back"));
}

TEST_F(IdleMonitorScreensTest, RefusesAStretchInWhichTheScreensSlept) {
    monitor->start();
    workFor(20 * 60);
    screens.sleep();
    source.fix(0.25);
    screens.wake();
    workFor(20 * 60);
    EXPECT_FALSE(monitor->wasActiveForLast(30));
    EXPECT_FALSE(monitor->wasActiveForLast(20));
    EXPECT_TRUE(monitor->wasActiveForLast(19));
    EXPECT_TRUE(monitor->wasActiveForLast(15));
}

TEST_F(IdleMonitorScreensTest, TellsOfTheWakeOnceTheUserIsBack) {
    source.growFrom(0);
    monitor->start();
    screens.sleep();
    time.advance(30);
    EXPECT_THAT(takeCalls(), ElementsAre("screens slept", "back"));
    EXPECT_TRUE(monitor->screensSleep());
    screens.wake();
    EXPECT_THAT(takeCalls(), ElementsAre("screens woke"));
}

TEST_F(IdleMonitorScreensTest, AMinuteOfInputEndsTheSleepOfTheScreens) {
    source.fix(0.25);
    monitor->start();
    screens.sleep();
    time.advance(50);
    EXPECT_THAT(takeCalls(), ElementsAre("screens slept", "back"));
    source.fix(20);
    time.advance(10);
    source.fix(0.25);
    time.advance(50);
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_TRUE(monitor->screensSleep());
    time.advance(10);
    EXPECT_THAT(takeCalls(), ElementsAre("screens woke"));
    time.advance(300);
    screens.wake();
    EXPECT_THAT(takeCalls(), ElementsAre("screens woke")) << "the late wake changes nothing";
}

TEST_F(IdleMonitorScreensTest, WakeWithoutACounterTellsNoSecondReturn) {
    source.fix(0.25);
    monitor->start();
    screens.sleep();
    time.advance(IdleMonitor::pollInterval);
    EXPECT_THAT(takeCalls(), ElementsAre("screens slept", "back"));
    source.becomeUnknown();
    screens.wake();
    EXPECT_THAT(takeCalls(), ElementsAre("screens woke"));
}

TEST_F(IdleMonitorScreensTest, StartedAgainItAsksWhetherTheScreensStillSleep) {
    source.fix(0.25);
    monitor->start();
    screens.sleep();
    monitor->stop();
    monitor->start();
    EXPECT_TRUE(monitor->screensSleep());
    monitor->stop();
    screens.wake();
    monitor->start();
    EXPECT_FALSE(monitor->screensSleep());
}

} // namespace
} // namespace vantle
