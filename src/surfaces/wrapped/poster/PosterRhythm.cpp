#include "surfaces/wrapped/poster/PosterRhythm.h"

#include "review/drawing/RhythmTilePainter.h"
#include "surfaces/kit/tokens/Look.h"
#include "surfaces/wrapped/poster/PosterLayout.h"
#include "surfaces/wrapped/poster/PosterText.h"

#include <QPainter>

namespace vantle::posterrhythm {

namespace {

constexpr double kLetterLine = 8;
constexpr double kWeekTileTop = 21;
constexpr int kWeeksInHalf = 27;

constexpr TileShape kWeekTile{{40, 40}, 10};
constexpr TileShape kMonthTile{{44, 26}, 7};
constexpr TileShape kYearTile{{10.5, 10.5}, look::kLengths.radiusYearTile, true};

void drawWeek(QPainter& painter, QPointF topLeft, const RhythmPicture& picture) {
    const TileShape& shape = kWeekTile;
    const double pitch = (PosterLayout::kColumn - shape.size.width()) / 6;
    const QFont font = postertext::font(look::kType.smallMedium);
    for (std::size_t i = 0; i < 7; ++i) {
        const DayTile& tile = picture.weeks.front()[i];
        const QPointF corner = topLeft + QPointF(pitch * double(i), 0);
        postertext::drawAround(
            painter, corner + QPointF(shape.size.width() / 2, kLetterLine),
            picture.letters.value(qsizetype(i)), font,
            (tile.isFuture ? look::kDark.textWeekdayFuture : look::kDark.textWeekday).color());
        rhythmtile::draw(painter, corner + QPointF(0, kWeekTileTop), shape, tile);
    }
}

void drawMonth(QPainter& painter, QPointF topLeft, const RhythmPicture& picture) {
    const TileShape& shape = kMonthTile;
    const double pitch = (PosterLayout::kColumn - shape.size.width()) / 6;
    for (std::size_t week = 0; week < picture.weeks.size(); ++week)
        for (std::size_t day = 0; day < 7; ++day)
            rhythmtile::draw(
                painter,
                topLeft + QPointF(pitch * double(day), PosterLayout::kMonthPitch * double(week)),
                shape, picture.weeks[week][day]);
}

/// A year as week columns, in two halves.
void drawYear(QPainter& painter, QPointF topLeft, const RhythmPicture& picture) {
    const double pitch = PosterLayout::kYearPitch;
    const double half = 7 * pitch + PosterLayout::kYearHalfGap;
    for (const bool today : {false, true})
        for (std::size_t week = 0; week < picture.weeks.size(); ++week) {
            const std::size_t row = week / kWeeksInHalf;
            const QPointF column =
                topLeft + QPointF(pitch * double(week % kWeeksInHalf), half * double(row));
            for (std::size_t day = 0; day < 7; ++day) {
                const DayTile& tile = picture.weeks[week][day];
                if (tile.isToday == today)
                    rhythmtile::draw(painter, column + QPointF(0, pitch * double(day)), kYearTile,
                                     tile);
            }
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
