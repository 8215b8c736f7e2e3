// The length of time that is typed into two fields, hours and minutes.
//
// Plain values and pure functions, any thread.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace vantle {

/// The two fields as they stand.
struct QuickLogDuration {
    QString hours;
    QString minutes;

    static constexpr int minMinutes = 1;
    static constexpr int maxMinutes = 960; ///< 16 hours
    static constexpr int stepMinutes = 5;

    friend bool operator==(const QuickLogDuration&, const QuickLogDuration&) = default;

    /// Both fields as minutes; an empty field counts as 0. Empty when one holds no whole number, or
    /// one below 0.
    [[nodiscard]] std::optional<std::int64_t> total() const;

    /// The total when it may be logged, 1 to 960.
    [[nodiscard]] std::optional<int> validMinutes() const;

    /// The fields for a total, cut to 1 to 960.
    [[nodiscard]] static QuickLogDuration of(std::int64_t total);

    /// The same time with less than 60 minutes in the second field, and no more than can be logged.
    /// What is no time, and no time at all, stay as they are: the person finds them, and is told.
    [[nodiscard]] QuickLogDuration normalized() const;

    /// "1 hour 30 minutes"; empty while a field holds no number.
    [[nodiscard]] QString spoken() const;

    /// One step more or less. A field that holds no number counts as 0.
    [[nodiscard]] QuickLogDuration stepped(int steps) const;
};

} // namespace vantle
