// Where random numbers come from, so that tests can say which ones come.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vantle {

/// A sequence of uniform draws. One thread at a time.
class RandomSource {
public:
    RandomSource() = default;
    RandomSource(const RandomSource&) = delete;
    RandomSource& operator=(const RandomSource&) = delete;
    virtual ~RandomSource() = default;

    /// The next number, at least 0 and less than 1.
    [[nodiscard]] virtual double uniform() = 0;

    /// At least 0 and less than `bound`. Takes one draw.
    [[nodiscard]] double below(double bound) { return uniform() * bound; }

    /// One of 0 to `count` - 1, each as likely as the others. Takes one draw.
    [[nodiscard]] int index(int count) { return static_cast<int>(uniform() * count); }
};

/// The operating system's generator: no seed, no two sequences alike. Never fails.
class SystemRandom final : public RandomSource {
public:
    [[nodiscard]] double uniform() override;

private:
    void refill();

    // As much as the kernel gives in one piece. A call for each number would take ten times as
    // long, and the processor's own instruction thirty times.
    std::array<std::uint64_t, 32> m_pool{};
    std::size_t m_taken = 32; ///< of the pool
};

} // namespace vantle
