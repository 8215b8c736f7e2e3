// The layout of the poster: one column of variable height.
//
// Plain values, any thread; needs an application object for text widths. Lengths in px of the
// poster, texts by their baselines.
#pragma once

#include "review/SharePoster.h"

#include <QSizeF>
#include <QStringList>

namespace vantle {

struct PosterLayout {
    static constexpr double kWidth = 422;
    static constexpr double kMargin = 36; ///< left and right
    static constexpr double kColumn = kWidth - 2 * kMargin;
    static constexpr double kRight = kWidth - kMargin;

    static constexpr double kIcon = 44;
    static constexpr double kBesideIcon = kMargin + kIcon + 12;
    static constexpr double kWordmarkLine = 55;
    static constexpr double kTitleLine = 73.5;

    static constexpr double kClosingLeading = 23;
    static constexpr int kClosingLines = 2;

    static constexpr double kBarHeight = 6;
    static constexpr double kRow = 28;

    static constexpr double kMonthPitch = 34; ///< between rows
    static constexpr double kYearPitch = 13;  ///< between tiles, both ways
    static constexpr double kYearHalfGap = 14;

    [[nodiscard]] static PosterLayout of(const SharePoster& poster);

    /// The centre line of a breakdown row.
    [[nodiscard]] double row(std::size_t index) const { return firstRow + kRow * double(index); }
    [[nodiscard]] QSizeF size() const { return {kWidth, height}; }

    double heroLine = 0;
    QStringList closing; ///< one entry per line
    double closingLine = 0;
    double rhythmKickerLine = 0;
    double rhythmTop = 0;
    double breakdownKickerLine = 0;
    double firstRow = 0; ///< its centre line
    double divider = 0;  ///< its upper edge
    double figureLine = 0;
    double figureTitleLine = 0;
    double footerLine = 0;
    double height = 0;
};

} // namespace vantle
