// When sessions begin. Plain values and pure functions, any thread.
#pragma once

#include "base/Calendar.h"
#include "review/stats/SessionRefs.h"

#include <QString>

#include <array>
#include <optional>

namespace vantle {

/// The starts of some sessions by the minute of the day, from which the rest is told.
class StartTimes {
public:
    StartTimes(SessionRefs sessions, const Calendar& calendar);

    [[nodiscard]] int total() const { return m_total; }

    /// The middle start, in minutes since midnight; of an even count the later of the middle two.
    /// None of less than three.
    [[nodiscard]] std::optional<int> medianMinutes() const;

    /// The hour of the middle start as the locale (an ICU id) writes it; its minutes are left out.
    [[nodiscard]] std::optional<QString> typicalStart(const QString& locale) const;

    [[nodiscard]] std::array<int, 24> perHour() const;

private:
    static constexpr std::size_t kMinutesPerDay = 1440;

    std::array<int, kMinutesPerDay> m_perMinute{};
    int m_total = 0;
};

/// The distribution of starts, in numbers and words.
struct StartRhythm {
    std::array<int, 12> counts{};  ///< starts in hours 2i and 2i + 1
    int peakHour = 0;              ///< the first hour with the most
    QString headline;              ///< one sentence
    std::optional<QString> detail; ///< a count for it
    friend bool operator==(const StartRhythm&, const StartRhythm&) = default;

    /// None of less than three starts.
    [[nodiscard]] static std::optional<StartRhythm> compute(const StartTimes& starts);
};

} // namespace vantle
