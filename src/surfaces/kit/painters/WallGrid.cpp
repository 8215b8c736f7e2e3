#include "surfaces/kit/painters/WallGrid.h"

#include <QRectF>

#include <algorithm>

namespace vantle {

double WallGrid::radius() const {
    const QSizeF cell = cellSize();
    return kDotRatio * std::min(cell.width(), cell.height());
}

QPointF WallGrid::center(int index) const {
    const QSizeF cell = cellSize();
    const int column = index % columns;
    const int row = index / columns;
    const double y = (row + 0.5) * cell.height();
    if (!isFlush || columns < 2) return {(column + 0.5) * cell.width(), y};
    return {radius() + column * (size.width() - 2 * radius()) / (columns - 1), y};
}

int WallGrid::cellAt(QPointF point) const {
    if (size.isEmpty() || !QRectF(QPointF(), size).contains(point)) return -1;
    const QSizeF cell = cellSize();
    const int column = std::min(static_cast<int>(point.x() / cell.width()), columns - 1);
    const int row = std::min(static_cast<int>(point.y() / cell.height()), rows - 1);
    return row * columns + column;
}

} // namespace vantle
