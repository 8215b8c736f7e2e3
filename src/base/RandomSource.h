// A source of random numbers that tests can replace.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vantle {

/// A sequence of uniform numbers. One thread at a time.
class RandomSource {
public:
    RandomSource() = default;
    RandomSource(const RandomSource&) = delete;
    RandomSource& operator=(const RandomSource&) = delete;
    virtual ~RandomSource() = default;

    /// Returns the next number, at least 0 and less than 1.
    [[nodiscard]] virtual double uniform() = 0;

    /// Returns a number of at least 0 and less than `bound`. Takes one draw.
    [[nodiscard]] double below(double bound) { return uniform() * bound; }

    /// Returns one of 0 to `count` - 1 with equal probability. Takes one draw.
    [[nodiscard]] int index(int count) { return static_cast<int>(uniform() * count); }
};

/// The operating system's generator: no seed, no repeatable sequence. Never fails.
class SystemRandom final : public RandomSource {
public:
    [[nodiscard]] double uniform() override;

private:
    void refill();

    // As much as one getrandom() call returns. A call per number would take ten times as long, the
    // processor's own instruction thirty times.
    std::array<std::uint64_t, 32> m_pool{};
    std::size_t m_taken = 32; ///< numbers of the pool already used
};

} // namespace vantle
