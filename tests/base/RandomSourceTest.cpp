// The system's random numbers, which no seed repeats.
#include "base/RandomSource.h"

#include <gtest/gtest.h>

#include <set>

namespace vantle {
namespace {

TEST(SystemRandom, NumbersLieInTheUnitIntervalAndDoNotRecur) {
    SystemRandom first;
    SystemRandom second;
    std::set<double> seen;
    for (int i = 0; i < 200; ++i)
        for (SystemRandom* source : {&first, &second}) {
            const double number = source->uniform();
            EXPECT_GE(number, 0.0);
            EXPECT_LT(number, 1.0);
            EXPECT_TRUE(seen.insert(number).second) << "two of 400 are equal once in 10^11 runs";
        }
}

TEST(SystemRandom, EveryIndexIsDrawn) {
    SystemRandom random;
    std::set<int> drawn;
    for (int i = 0; i < 400; ++i)
        drawn.insert(random.index(3));
    EXPECT_EQ(drawn, (std::set{0, 1, 2}));
}

} // namespace
} // namespace vantle
