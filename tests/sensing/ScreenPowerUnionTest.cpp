#include "sensing/ScreenPowerUnion.h"

#include "fakes/FakeScreenPower.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

namespace vantle {
namespace {

using fakes::FakeScreenPower;
using testing::ElementsAre;
using testing::IsEmpty;

/// A union over three sources, and what it said.
struct Screens {
    explicit Screens(std::vector<std::unique_ptr<FakeScreenPower>> made = threeAwake()) {
        std::vector<std::unique_ptr<ScreenPower>> given;
        for (auto& source : made) {
            sources.push_back(source.get());
            given.push_back(std::move(source));
        }
        all = std::make_unique<ScreenPowerUnion>(std::move(given));
        QObject::connect(all.get(), &ScreenPower::slept, all.get(), [this] {
            EXPECT_TRUE(all->asleep());
            edges.emplace_back("slept");
        });
        QObject::connect(all.get(), &ScreenPower::woke, all.get(), [this] {
            EXPECT_FALSE(all->asleep());
            edges.emplace_back("woke");
        });
    }

    static std::vector<std::unique_ptr<FakeScreenPower>> threeAwake() {
        std::vector<std::unique_ptr<FakeScreenPower>> made;
        for (int i = 0; i < 3; ++i)
            made.push_back(std::make_unique<FakeScreenPower>());
        return made;
    }

    std::vector<FakeScreenPower*> sources;
    std::unique_ptr<ScreenPowerUnion> all;
    std::vector<std::string> edges;
};

TEST(ScreenPowerUnion, SleepsAndWakesWithItsOnlySleeper) {
    Screens screens;
    screens.sources[1]->sleep();
    EXPECT_TRUE(screens.all->asleep());
    screens.sources[1]->wake();
    EXPECT_FALSE(screens.all->asleep());
    EXPECT_THAT(screens.edges, ElementsAre("slept", "woke"));
}

TEST(ScreenPowerUnion, TellsOneSleepHoweverManySourcesOverlap) {
    Screens screens;
    screens.sources[0]->sleep();
    screens.sources[2]->sleep();
    screens.sources[0]->wake();
    screens.sources[1]->sleep();
    screens.sources[2]->wake();
    EXPECT_THAT(screens.edges, ElementsAre("slept"));
    screens.sources[1]->wake();
    EXPECT_THAT(screens.edges, ElementsAre("slept", "woke"));
}

TEST(ScreenPowerUnion, IgnoresASourceThatRepeatsItself) {
    Screens screens;
    screens.sources[0]->tellWake();
    EXPECT_THAT(screens.edges, IsEmpty());
    screens.sources[0]->tellSleep();
    screens.sources[0]->tellSleep();
    EXPECT_THAT(screens.edges, ElementsAre("slept"));
}

TEST(ScreenPowerUnion, IsAsleepFromTheBeginningWhenASourceIs) {
    auto made = Screens::threeAwake();
    made[2]->beAsleep();
    Screens screens(std::move(made));
    EXPECT_TRUE(screens.all->asleep());
    screens.sources[0]->sleep();
    screens.sources[0]->wake();
    EXPECT_THAT(screens.edges, IsEmpty());
    screens.sources[2]->wake();
    EXPECT_THAT(screens.edges, ElementsAre("woke"));
}

TEST(ScreenPowerUnion, NeverSleepsWithoutSources) { EXPECT_FALSE(ScreenPowerUnion({}).asleep()); }

RC_GTEST_PROP(ScreenPowerUnion, AlternatesItsEdgesAndSleepsExactlyWhileASourceDoes,
              (const std::vector<bool>& sleeps)) {
    Screens screens;
    for (const bool sleep : sleeps) {
        FakeScreenPower& source = *screens.sources[*rc::gen::inRange<std::size_t>(0, 3)];
        if (sleep)
            source.tellSleep();
        else
            source.tellWake();
        const bool any = std::ranges::any_of(screens.sources, &FakeScreenPower::asleep);
        RC_ASSERT(screens.all->asleep() == any);
    }
    for (std::size_t i = 0; i < screens.edges.size(); ++i)
        RC_ASSERT(screens.edges[i] == (i % 2 == 0 ? "slept" : "woke"));
}

} // namespace
} // namespace vantle
