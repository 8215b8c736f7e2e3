// Where the tiles of a review's calendar stand in its window, and the letters and names beside
// them.
//
// Plain values and pure functions, any thread. Lengths in px. Time runs from left to right, and
// from the top down, in every locale, as it does on the poster.
#pragma once

#include "review/drawing/RhythmTilePainter.h"

#include <QRectF>
#include <QString>

#include <vector>

namespace vantle {

struct RhythmLayout {
    struct Spot {
        QPointF topLeft;
        DayTile tile;
    };
    struct Label {
        QString text;
        QPointF top; ///< of its line: the middle of a weekday's letter, the start of a month's name
        bool isCentered = false;
        bool isFuture = false;
    };
    static constexpr double labelLine = 15; ///< its height

    TileShape shape;
    std::vector<Spot> spots; ///< days only, in their order
    std::vector<Label> labels;
    QSizeF size;

    /// The picture in a column of that width. Empty where the calendar can't tell its days.
    [[nodiscard]] static RhythmLayout of(const RhythmPicture& picture, double width);

    /// The index of the day under a point, or beside it by less than half a gap; -1 for none.
    [[nodiscard]] int spotAt(QPointF point) const;
    [[nodiscard]] QRectF area(int spot) const;
};

} // namespace vantle
