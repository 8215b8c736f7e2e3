// How a screen is divided into cells, each of which may hold a dot. Plain values, any thread.
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
    /// The most cells that a screen should have. A pitch that the rounding leaves just short of it
    /// grows once; what that gives is taken.
    static constexpr int maxFieldPixels = 13000;

    /// The grid of a screen of that size in points. A size that is no number counts as the least.
    [[nodiscard]] static CeremonyGrid forScreen(QSizeF size);

    friend bool operator==(const CeremonyGrid&, const CeremonyGrid&) = default;
};

} // namespace vantle
