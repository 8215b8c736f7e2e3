// How the calendar of a review looks: which picture, how bright its tiles are, what stands under
// it.
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

/// The year of the year map: the chosen one, else the last with work, else this one.
/// `activeYears` has the latest first.
[[nodiscard]] int yearShown(std::optional<int> chosen, const std::vector<int>& activeYears,
                            const RhythmDays& days);

/// The years to choose from; none where there is no choice.
[[nodiscard]] std::vector<int> yearChoices(const std::vector<int>& activeYears);
[[nodiscard]] QString yearChoiceLabel(int year); ///< for assistive tools

[[nodiscard]] QString caption(WrappedPeriod period, int year, const RhythmDays& days);

/// The picture in words, for assistive tools; empty for a week, whose tiles speak for themselves.
[[nodiscard]] QString label(WrappedPeriod period, int year);

/// The shortest names of the weekdays, from the calendar's first on: "M", "T".
[[nodiscard]] QStringList headerLetters(const Calendar& calendar);

/// How strong the colour of a day of so many hours is; none for one without work.
[[nodiscard]] std::optional<double> opacity(double hours);

/// How a tile is drawn; what is not there is not drawn.
struct TileLook {
    struct Outline {
        double opacity = 0;          ///< of white
        std::optional<double> width; ///< px; none for a hairline
    };
    std::optional<std::uint32_t> fill; ///< 0xRRGGBB
    double fillOpacity = 0;
    std::optional<Outline> outline;
};

/// Days without a colour of their own take `accent`.
[[nodiscard]] TileLook tile(const GridDay& day, std::uint32_t accent);

/// The seconds after which the tile `index` of a week begins to grow, and how long it takes.
[[nodiscard]] double weekDelay(int index);
inline constexpr double weekGrowSeconds = 0.6;

/// How high the bars of the starts are, as parts of the highest. All 0 without a start.
[[nodiscard]] std::vector<double> startBars(std::span<const int> counts);

} // namespace vantle::rhythmmap
