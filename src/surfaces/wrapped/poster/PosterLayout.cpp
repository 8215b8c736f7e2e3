#include "surfaces/wrapped/poster/PosterLayout.h"

#include "surfaces/kit/tokens/Look.h"
#include "surfaces/wrapped/poster/PosterText.h"

#include <algorithm>

namespace vantle {

namespace {

constexpr double kNameLine = 174;
constexpr double kHoursLine = 210;
constexpr double kNameToClosing = 32;
constexpr double kHoursToClosing = 44;
constexpr double kClosingToKicker = 47;
constexpr double kKickerToRhythm = 20;

constexpr double kWeekHeight = 61;
constexpr double kHalfYearHeight = 7 * PosterLayout::kYearPitch;

constexpr double kRhythmToKicker = 37;
constexpr double kKickerToRow = 25;
constexpr double kRowToDivider = 36;
constexpr double kRhythmToDivider = 28;

constexpr double kDividerToFigure = 41;
constexpr double kDividerToFigureTitle = 60;
constexpr double kDividerToFooter = 101;
constexpr double kDividerToEnd = 132;

double rhythmHeight(const RhythmPicture& picture) {
    if (picture.weeks.empty()) return 0;
    switch (picture.kind) {
    case rhythmmap::Picture::Week:
        return kWeekHeight;
    case rhythmmap::Picture::Month:
        return PosterLayout::kMonthPitch * double(picture.weeks.size()) - 1;
    case rhythmmap::Picture::Year:
        return 2 * kHalfYearHeight + PosterLayout::kYearHalfGap;
    }
    Q_UNREACHABLE();
}

} // namespace

PosterLayout PosterLayout::of(const SharePoster& poster) {
    const bool hasName = !poster.personaName.isEmpty();
    PosterLayout at;
    at.heroLine = hasName ? kNameLine : kHoursLine;
    at.closing = postertext::broken(poster.closing, postertext::font(look::kType.lead), kColumn,
                                    kClosingLines);
    at.closingLine = at.heroLine + (hasName ? kNameToClosing : kHoursToClosing);
    const double closingEnd =
        at.closingLine + kClosingLeading * double(std::max<qsizetype>(at.closing.size() - 1, 0));

    at.rhythmKickerLine = closingEnd + kClosingToKicker;
    at.rhythmTop = at.rhythmKickerLine + kKickerToRhythm;
    const double rhythmEnd = at.rhythmTop + rhythmHeight(poster.rhythm);

    if (poster.breakdown.empty()) {
        at.divider = rhythmEnd + kRhythmToDivider;
    } else {
        at.breakdownKickerLine = rhythmEnd + kRhythmToKicker;
        at.firstRow = at.breakdownKickerLine + kKickerToRow;
        at.divider = at.row(poster.breakdown.size() - 1) + kRowToDivider;
    }
    at.figureLine = at.divider + kDividerToFigure;
    at.figureTitleLine = at.divider + kDividerToFigureTitle;
    at.footerLine = at.divider + kDividerToFooter;
    at.height = at.divider + kDividerToEnd;
    return at;
}

} // namespace vantle
