// A reproducible sequence of random numbers.
#pragma once

#include "base/RandomSource.h"

namespace vantle::fakes {

/// SplitMix64 from a seed.
class SplitMixRandom final : public RandomSource {
public:
    explicit SplitMixRandom(std::uint64_t seed) : m_state(seed) {}

    [[nodiscard]] double uniform() override {
        ++m_draws;
        m_state += 0x9E3779B97F4A7C15;
        std::uint64_t z = m_state;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9;
        z = (z ^ z >> 27) * 0x94D049BB133111EB;
        return static_cast<double>((z ^ z >> 31) >> 11) * 0x1p-53;
    }

    /// The number of draws so far.
    [[nodiscard]] int draws() const { return m_draws; }

private:
    std::uint64_t m_state;
    int m_draws = 0;
};

} // namespace vantle::fakes
