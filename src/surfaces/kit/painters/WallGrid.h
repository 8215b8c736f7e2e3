// The layout of an hour wall: rows of equal cells.
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
    /// The dots of the outer columns touch the sides, in place of standing in their cells' middle.
    bool isFlush = false;

    /// A dot's radius relative to the shorter side of its cell.
    static constexpr double kDotRatio = 0.36;

    [[nodiscard]] int cells() const { return columns * rows; }
    [[nodiscard]] QSizeF cellSize() const { return {size.width() / columns, size.height() / rows}; }
    [[nodiscard]] double radius() const;
    /// Returns the centre of cell `index`, counted along the rows from 0.
    [[nodiscard]] QPointF center(int index) const;
    /// Returns the cell at a point; -1 outside the wall.
    [[nodiscard]] int cellAt(QPointF point) const;
};

} // namespace vantle
