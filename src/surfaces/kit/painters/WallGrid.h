// Where the dots of an hour wall stand: rows of equal cells, filled from the upper left.
//
// Plain values, any thread.
#pragma once

#include <QPointF>
#include <QSizeF>

namespace vantle {

struct WallGrid {
    int columns = 1;
    int rows = 1;
    QSizeF size; ///< of the whole wall, px

    /// The part of a cell's smaller side that is a dot's radius.
    static constexpr double kDotRatio = 0.36;

    [[nodiscard]] int cells() const { return columns * rows; }
    [[nodiscard]] QSizeF cellSize() const { return {size.width() / columns, size.height() / rows}; }
    [[nodiscard]] double radius() const;
    /// The centre of the cell `index`, which counts from 0 along the rows.
    [[nodiscard]] QPointF center(int index) const;
    /// The cell under a point; -1 outside the wall.
    [[nodiscard]] int cellAt(QPointF point) const;
};

} // namespace vantle
