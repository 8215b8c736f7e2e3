// The look of a review's calendar: layout, brightness, captions.
//
// Plain values and pure functions, any thread.
#pragma once

#include "review/RhythmShape.h"

#include <QString>
#include <QStringList>

#include <span>

namespace vantle::rhythmmap {

enum class Picture { Week, Month, Year };

[[nodiscard]] Picture picture(WrappedPeriod period);

/// Returns the year to show: the chosen one, else the last with work, else the current one.
/// `activeYears` is sorted, latest first.
[[nodiscard]] int yearShown(std::optional<int> chosen, const std::vector<int>& activeYears,
                            const RhythmDays& days);

/// The years to choose from; empty when there is only one.
[[nodiscard]] std::vector<int> yearChoices(const std::vector<int>& activeYears);
[[nodiscard]] QString yearChoiceLabel(int year); ///< for screen readers

[[nodiscard]] QString caption(WrappedPeriod period, int year, const RhythmDays& days);

/// The picture for screen readers; empty for a week, whose tiles have their own labels.
[[nodiscard]] QString label(WrappedPeriod period, int year);

/// The narrowest weekday names in calendar order: "M", "T".
[[nodiscard]] QStringList headerLetters(const Calendar& calendar);

/// The opacity of a day's colour by its hours; empty for a day without work.
[[nodiscard]] std::optional<double> opacity(double hours);

/// The drawing of a tile; empty members are not drawn.
struct TileLook {
    struct Outline {
        double opacity = 0;          ///< opacity of white
        std::optional<double> width; ///< px; empty means a hairline
    };
    std::optional<std::uint32_t> fill; ///< 0xRRGGBB
    double fillOpacity = 0;
    std::optional<Outline> outline;
};

/// Days without a colour use `accent`.
[[nodiscard]] TileLook tile(const GridDay& day, std::uint32_t accent);

/// Seconds until tile `index` of a week starts to grow, and the duration.
[[nodiscard]] double weekDelay(int index);
inline constexpr double weekGrowSeconds = 0.6;

/// The heights of the start bars relative to the highest; all 0 without a start.
[[nodiscard]] std::vector<double> startBars(std::span<const int> counts);

} // namespace vantle::rhythmmap
