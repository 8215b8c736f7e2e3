#include "review/drawing/RhythmLayout.h"

#include <algorithm>

namespace vantle {

namespace {

constexpr TileShape kDayTile{{44, 44}, 11};
constexpr double kDayGap = 10; // below
constexpr double kBelowLetters = 10;

// A year: months in three columns, six weeks each. All lengths are whole pixels at 100 and 200 %,
// so that the small gaps are equal.
constexpr TileShape kYearTile{{10.5, 10.5}, 2.8, true};
constexpr QSizeF kYearPitch(15, 13);
constexpr double kBelowName = 8;
constexpr double kMonthGap = 15; // below
constexpr int kMonthColumns = 3;
constexpr int kMostWeeks = 6;
constexpr double kMonthWidth = 6 * kYearPitch.width() + 10.5;
constexpr double kMonthHeight =
    RhythmLayout::labelLine + kBelowName + (kMostWeeks - 1) * kYearPitch.height() + 10.5;

constexpr double kSlack = 1; // tolerance around a tile for the pointer

/// Adds the days of weeks, one row each.
void addRows(RhythmLayout& layout, const std::vector<RhythmPicture::Week>& weeks, QPointF topLeft,
             QSizeF pitch) {
    for (std::size_t row = 0; row < weeks.size(); ++row)
        for (std::size_t day = 0; day < weeks[row].size(); ++day) {
            const DayTile& tile = weeks[row][day];
            const QPointF away(pitch.width() * static_cast<double>(day),
                               pitch.height() * static_cast<double>(row));
            if (tile.isDay) layout.spots.push_back({topLeft + away, tile});
        }
}

/// A week or the weeks of a month: letters above columns of tiles.
RhythmLayout underLetters(const RhythmPicture& picture, double width) {
    RhythmLayout layout;
    layout.shape = kDayTile;
    const QSizeF pitch((width - kDayTile.size.width()) / 6, kDayTile.size.height() + kDayGap);
    const double top = RhythmLayout::labelLine + kBelowLetters;
    for (std::size_t i = 0; i < picture.weeks.front().size(); ++i) {
        const QPointF middle(pitch.width() * static_cast<double>(i) + kDayTile.size.width() / 2, 0);
        layout.labels.push_back({picture.letters.value(static_cast<qsizetype>(i)), middle, true,
                                 picture.isWeek() && picture.weeks.front()[i].isFuture});
    }
    addRows(layout, picture.weeks, {0, top}, pitch);
    const auto rows = static_cast<double>(picture.weeks.size());
    layout.size = {width, top + rows * pitch.height() - kDayGap};
    return layout;
}

bool isFuture(const std::vector<RhythmPicture::Week>& month) {
    return std::ranges::all_of(month, [](const RhythmPicture::Week& week) {
        return std::ranges::all_of(week,
                                   [](const DayTile& day) { return !day.isDay || day.isFuture; });
    });
}

RhythmLayout byMonths(const RhythmPicture& picture, double width) {
    RhythmLayout layout;
    layout.shape = kYearTile;
    const double across = (width - kMonthWidth) / (kMonthColumns - 1);
    const double down = kMonthHeight + kMonthGap;
    int index = 0;
    for (const auto& month : picture.months) {
        const int row = index / kMonthColumns;
        const QPointF corner(across * (index % kMonthColumns), down * row);
        layout.labels.push_back({picture.monthNames.value(index), corner, false, isFuture(month)});
        addRows(layout, month, corner + QPointF(0, RhythmLayout::labelLine + kBelowName),
                kYearPitch);
        ++index;
    }
    const int rows = (index + kMonthColumns - 1) / kMonthColumns;
    layout.size = {width, rows * down - kMonthGap};
    return layout;
}

} // namespace

RhythmLayout RhythmLayout::of(const RhythmPicture& picture, double width) {
    if (picture.weeks.empty()) return {{}, {}, {}, {width, 0}};
    return picture.isYear() ? byMonths(picture, width) : underLetters(picture, width);
}

int RhythmLayout::spotAt(QPointF point) const {
    const auto found = std::ranges::find_if(spots, [&](const Spot& spot) {
        return QRectF(spot.topLeft, shape.size)
            .adjusted(-kSlack, -kSlack, kSlack, kSlack)
            .contains(point);
    });
    return found == spots.end() ? -1 : static_cast<int>(found - spots.begin());
}

QRectF RhythmLayout::area(int spot) const {
    return {spots.at(static_cast<std::size_t>(spot)).topLeft, shape.size};
}

} // namespace vantle
