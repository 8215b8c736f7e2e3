// The distribution of session starts over the day.
//
// Plain values and pure functions, any thread.
#pragma once

#include "base/LocalTime.h"

#include <QString>

#include <array>
#include <cstddef>
#include <optional>

namespace vantle {

/// The starts by minute of the day.
class StartTimes {
public:
    /// Adds a start by the wall clock.
    void add(LocalTime::Moment start) {
        ++m_perMinute[static_cast<std::size_t>(start.second / 60)];
        ++m_total;
    }

    [[nodiscard]] int total() const { return m_total; }

    /// Returns the median start in minutes since midnight, the later of the two middle ones for an
    /// even count. Empty for fewer than three.
    [[nodiscard]] std::optional<int> medianMinutes() const;

    /// Returns the hour of the median start in the form of the locale (an ICU id), without minutes.
    [[nodiscard]] std::optional<QString> typicalStart(const QString& locale) const;

    [[nodiscard]] std::array<int, 24> perHour() const;

private:
    static constexpr std::size_t kMinutesPerDay = 1440;

    std::array<int, kMinutesPerDay> m_perMinute{};
    int m_total = 0;
};

/// The distribution in numbers and words.
struct StartRhythm {
    std::array<int, 12> counts{};  ///< starts in hours 2i and 2i + 1
    int peakHour = 0;              ///< the first hour with the most
    QString headline;              ///< one sentence
    std::optional<QString> detail; ///< a count that supports it
    friend bool operator==(const StartRhythm&, const StartRhythm&) = default;

    /// Empty for fewer than three starts.
    [[nodiscard]] static std::optional<StartRhythm> compute(const StartTimes& starts);
};

} // namespace vantle
