#include "ceremony/show/CeremonyGrid.h"

#include <algorithm>
#include <cmath>

namespace vantle {

CeremonyGrid CeremonyGrid::forScreen(QSizeF size) {
    CeremonyGrid grid;
    grid.width = size.width() > leastSide ? size.width() : leastSide;
    grid.height = size.height() > leastSide ? size.height() : leastSide;
    grid.cell = 2 * std::ceil(0.5 * std::sqrt(grid.width * grid.height / maxFieldPixels));
    grid.cell = std::max(grid.cell, leastCell);
    const auto divide = [&grid] {
        grid.cols = static_cast<int>(std::ceil(grid.width / grid.cell));
        grid.rows = static_cast<int>(std::ceil(grid.height / grid.cell));
    };
    divide();
    if (grid.cols * grid.rows > maxFieldPixels) {
        grid.cell += 2;
        divide();
    }
    return grid;
}

} // namespace vantle
