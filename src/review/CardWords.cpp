#include "review/CardWords.h"

#include "base/Decimals.h"
#include "base/Words.h"
#include "tracking/DashFormat.h"

#include <algorithm>

namespace vantle::cardwords {

std::uint32_t leadingColor(const WrappedStats& stats) {
    const auto top = stats.topSkill();
    return top ? top->hexRGB : accent;
}

QColor withOpacity(std::uint32_t hexRGB, double opacity) {
    QColor color = QColor::fromRgb(hexRGB);
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

QString sessions(int count) {
    return count == 1 ? Words::tr("1 session") : Words::tr("%n sessions", nullptr, count);
}

ReviewFigure figure(double hours, DurationStyle style) {
    const auto text = dashformat::statValue(hours, style);
    return {text.value, text.unit};
}

QString withOpenSpaces(QString text) {
    constexpr QChar kNarrowNoBreakSpace(0x202F);
    return text.replace(kNarrowNoBreakSpace, QChar(QChar::Nbsp));
}

QString share(double hours, const WrappedStats& stats) {
    return shownPercent(hours / stats.totalHours * 100);
}

QList<QColor> dotColors(const WrappedStats& stats, std::int64_t limit) {
    QList<QColor> newestFirst;
    for (auto run = stats.hourDots.rbegin(); run != stats.hourDots.rend(); ++run)
        for (std::int64_t i = 0; i < run->count && newestFirst.size() < limit; ++i)
            newestFirst << QColor::fromRgb(run->skill.hexRGB);
    std::ranges::reverse(newestFirst);
    return newestFirst;
}

std::int64_t dotCount(const WrappedStats& stats) {
    std::int64_t count = 0;
    for (const totals::DotRun& run : stats.hourDots)
        count += run.count;
    return count;
}

} // namespace vantle::cardwords
