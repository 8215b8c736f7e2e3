// An idle monitor with a counter and screens under the test's control.
#pragma once

#include "fakes/FakeIdleSource.h"
#include "fakes/FakeScreenPower.h"
#include "fakes/MemoryPreferences.h"
#include "sensing/IdleMonitor.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vantle {

class IdleMonitorTest : public testing::Test {
protected:
    IdleMonitorTest() { listenTo(*monitor); }

    void listenTo(IdleMonitor& which) {
        which.onIdleBegan = [this, &which](double seconds) {
            EXPECT_TRUE(which.isIdle()) << "the flag is set before its callback runs";
            calls.push_back("away " + QString::number(seconds).toStdString());
        };
        which.onActivityResumed = [this, &which] {
            EXPECT_FALSE(which.isIdle()) << "the flag is set before its callback runs";
            calls.emplace_back("back");
        };
        which.onScreensWoke = [this, &which] {
            EXPECT_FALSE(which.screensSleep()) << "the flag is set before its callback runs";
            calls.emplace_back("screens woke");
        };
        which.onScreensSlept = [this, &which] {
            EXPECT_TRUE(which.isIdle()) << "the flag is set before its callback runs";
            calls.emplace_back("screens slept");
        };
    }

    /// Returns and clears the recorded calls.
    std::vector<std::string> takeCalls() { return std::exchange(calls, {}); }

    void setThreshold(double seconds) {
        settings::idleThresholdSeconds.write(preferences, seconds);
    }

    /// The user works for that long, with a keystroke just before each poll.
    void workFor(double seconds) {
        source.fix(0.25);
        time.advance(seconds);
    }

    fakes::VirtualTime time;
    fakes::FakeIdleSource source{time};
    fakes::FakeScreenPower screens;
    fakes::MemoryPreferences preferences;
    std::unique_ptr<IdleMonitor> monitor =
        std::make_unique<IdleMonitor>(time, time, source, screens, preferences);
    std::vector<std::string> calls;
};

} // namespace vantle
