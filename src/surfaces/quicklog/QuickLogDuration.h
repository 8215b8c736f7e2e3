// The duration typed into two fields, hours and minutes.
//
// Plain values and pure functions, any thread.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace vantle {

/// The texts of the two fields.
struct QuickLogDuration {
    QString hours;
    QString minutes;

    static constexpr int minMinutes = 1;
    static constexpr int maxMinutes = 960; ///< 16 hours
    static constexpr int stepMinutes = 5;

    friend bool operator==(const QuickLogDuration&, const QuickLogDuration&) = default;

    /// Returns both fields in minutes; an empty field counts as 0. Empty when a field is not a
    /// whole number of at least 0.
    [[nodiscard]] std::optional<std::int64_t> total() const;

    /// Returns the total if it can be logged, 1 to 960 minutes.
    [[nodiscard]] std::optional<int> validMinutes() const;

    /// Returns the fields for a total, clamped to 1 to 960 minutes.
    [[nodiscard]] static QuickLogDuration of(std::int64_t total);

    /// Returns the same time with less than 60 in the minutes field, capped at the maximum. Leaves
    /// invalid text and a zero time alone, so that the user sees the error.
    [[nodiscard]] QuickLogDuration normalized() const;

    /// "1 hour 30 minutes"; empty while a field is invalid.
    [[nodiscard]] QString spoken() const;

    /// Returns the time moved by `steps`. An invalid field counts as 0.
    [[nodiscard]] QuickLogDuration stepped(int steps) const;
};

} // namespace vantle
