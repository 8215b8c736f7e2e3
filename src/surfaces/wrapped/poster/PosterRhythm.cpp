#include "surfaces/wrapped/poster/PosterRhythm.h"

#include "surfaces/wrapped/poster/PosterLayout.h"
#include "surfaces/wrapped/poster/PosterText.h"

#include <QPainter>

namespace vantle::posterrhythm {

namespace {

struct TileShape {
    QSizeF size;
    double radius = 0;
    bool hasEdge = true; ///< too fine a line for small tiles
    double ringAway = 3; ///< from the tile to the outer edge of the ring around today's
};

constexpr double kEdgeWidth = 1;
constexpr double kLetterLine = 8;
constexpr double kWeekTileTop = 21;
constexpr int kWeeksInHalf = 27;

const TileShape& weekTile() {
    static const TileShape shape{{40, 40}, 10};
    return shape;
}
const TileShape& monthTile() {
    static const TileShape shape{{44, 26}, 7};
    return shape;
}
const TileShape& yearTile() {
    static const TileShape shape{{10.5, 10.5}, 2.8, false, 1.25};
    return shape;
}

void fill(QPainter& painter, const QRectF& area, double radius, const QColor& color) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(area, radius, radius);
}

/// A line of that width whose outer edge is the area's.
void edgeInside(QPainter& painter, const QRectF& area, double radius, const QColor& color,
                double width) {
    const double half = width / 2;
    painter.setPen(QPen(color, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(half, half, -half, -half), radius - half, radius - half);
}

void drawTile(QPainter& painter, QPointF topLeft, const DayTile& tile, const TileShape& shape) {
    if (!tile.isDay) return;
    const QRectF area(topLeft, shape.size);
    fill(painter, area, shape.radius, tile.hasFill ? tile.fill : posterlook::emptyTile());
    if (tile.isFuture) {
        edgeInside(painter, area, shape.radius, tile.outline, tile.outlineWidth);
    } else if (tile.hasFill && shape.hasEdge) {
        edgeInside(painter, area, shape.radius, posterlook::white(posterlook::kTileEdge),
                   kEdgeWidth);
    }
    if (!tile.isToday || tile.outlineWidth <= 0) return;
    const double away = shape.ringAway;
    edgeInside(painter, area.adjusted(-away, -away, away, away), shape.radius + away, tile.outline,
               tile.outlineWidth);
}

void drawWeek(QPainter& painter, QPointF topLeft, const RhythmPicture& picture) {
    const TileShape& shape = weekTile();
    const double pitch = (PosterLayout::kColumn - shape.size.width()) / 6;
    const QFont font = postertext::font(posterlook::kLetter);
    for (std::size_t i = 0; i < 7; ++i) {
        const DayTile& tile = picture.weeks.front()[i];
        const QPointF corner = topLeft + QPointF(pitch * double(i), 0);
        postertext::drawAround(painter, corner + QPointF(shape.size.width() / 2, kLetterLine),
                               picture.letters.value(qsizetype(i)), font,
                               tile.isFuture ? posterlook::futureLetter() : posterlook::letter());
        drawTile(painter, corner + QPointF(0, kWeekTileTop), tile, shape);
    }
}

void drawMonth(QPainter& painter, QPointF topLeft, const RhythmPicture& picture) {
    const TileShape& shape = monthTile();
    const double pitch = (PosterLayout::kColumn - shape.size.width()) / 6;
    for (std::size_t week = 0; week < picture.weeks.size(); ++week)
        for (std::size_t day = 0; day < 7; ++day)
            drawTile(painter,
                     topLeft +
                         QPointF(pitch * double(day), PosterLayout::kMonthPitch * double(week)),
                     picture.weeks[week][day], shape);
}

/// Weeks stand as columns, in two halves one below the other.
void drawYear(QPainter& painter, QPointF topLeft, const RhythmPicture& picture) {
    const double pitch = PosterLayout::kYearPitch;
    const double half = 7 * pitch + PosterLayout::kYearHalfGap;
    for (std::size_t week = 0; week < picture.weeks.size(); ++week) {
        const QPointF column = topLeft + QPointF(pitch * double(week % kWeeksInHalf),
                                                 half * double(week / kWeeksInHalf));
        for (std::size_t day = 0; day < 7; ++day)
            drawTile(painter, column + QPointF(0, pitch * double(day)), picture.weeks[week][day],
                     yearTile());
    }
}

} // namespace

void draw(QPainter& painter, QPointF topLeft, const RhythmPicture& picture) {
    if (picture.weeks.empty()) return;
    switch (picture.kind) {
    case rhythmmap::Picture::Week:
        return drawWeek(painter, topLeft, picture);
    case rhythmmap::Picture::Month:
        return drawMonth(painter, topLeft, picture);
    case rhythmmap::Picture::Year:
        return drawYear(painter, topLeft, picture);
    }
}

} // namespace vantle::posterrhythm
