// The division of a screen into cells for dots.
//
// Plain values, any thread.
#pragma once

#include <QSizeF>

namespace vantle {

struct CeremonyGrid {
    double width = 0;  ///< points, at least `leastSide`
    double height = 0; ///< points, at least `leastSide`
    double cell = 0;   ///< pitch in points, even, at least `leastCell`
    int cols = 0;
    int rows = 0;

    static constexpr double leastSide = 24;
    static constexpr double leastCell = 12;
    /// The target for the number of cells. When rounding leaves the pitch just too small, it grows
    /// once, whatever results.
    static constexpr int maxFieldPixels = 13000;

    /// Returns the grid of a screen of that size in points. NaN counts as the minimum.
    [[nodiscard]] static CeremonyGrid forScreen(QSizeF size);

    friend bool operator==(const CeremonyGrid&, const CeremonyGrid&) = default;
};

} // namespace vantle
