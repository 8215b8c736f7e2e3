#include "review/RhythmMap.h"

#include "base/Bidi.h"
#include "base/DateText.h"
#include "base/LocalTime.h"
#include "base/Words.h"

#include <algorithm>

namespace vantle::rhythmmap {

namespace {

constexpr std::uint32_t kWhite = 0xFFFFFF;

QString monthName(const RhythmDays& days) {
    return DateText::fixed(QStringLiteral("LLLL"), days.calendar)(days.now);
}

} // namespace

Picture picture(WrappedPeriod period) {
    switch (period) {
    case WrappedPeriod::Today:
    case WrappedPeriod::Week:
    case WrappedPeriod::LastWeek:
        return Picture::Week;
    case WrappedPeriod::Month:
        return Picture::Month;
    case WrappedPeriod::AllTime:
        return Picture::Year;
    }
    Q_UNREACHABLE();
}

int yearShown(std::optional<int> chosen, const std::vector<int>& activeYears,
              const RhythmDays& days) {
    if (chosen) return *chosen;
    return activeYears.empty() ? rhythmshape::yearOf(days.now, days.calendar) : activeYears.front();
}

std::vector<int> yearChoices(const std::vector<int>& activeYears) {
    return activeYears.size() < 2 ? std::vector<int>() : activeYears;
}

QString yearChoiceLabel(int year) { return Words::tr("Show %1").arg(year); }

QString caption(WrappedPeriod period, int year, const RhythmDays& days) {
    QString what = Words::tr("This week");
    if (period == WrappedPeriod::LastWeek) what = Words::tr("Last week");
    if (period == WrappedPeriod::Month) what = bidi::isolated(monthName(days));
    if (period == WrappedPeriod::AllTime) what = QString::number(year);
    return Words::tr("%1, day by day. Brighter is more time.").arg(what);
}

QString label(WrappedPeriod period, int year) {
    switch (picture(period)) {
    case Picture::Week:
        return {};
    case Picture::Month:
        return Words::tr("Daily activity this month");
    case Picture::Year:
        return Words::tr("Daily activity across %1, week by week").arg(year);
    }
    Q_UNREACHABLE();
}

QStringList headerLetters(const Calendar& calendar) {
    Calendar utc = calendar;
    utc.timeZone = QStringLiteral("UTC");
    const DateText letter = DateText::fixed(QStringLiteral("ccccc"), utc);
    constexpr int kFirstSunday = 3; // 1970-01-04
    QStringList letters;
    for (int i = 0; i < 7; ++i) {
        const int weekday = (calendar.firstWeekday - 1 + i) % 7;
        letters << letter(dateFromEpoch(
            static_cast<double>((kFirstSunday + weekday) * localtime::kSecondsPerDay)));
    }
    return letters;
}

std::optional<double> opacity(double hours) {
    if (hours < 1.0 / 120) return std::nullopt; // half a minute
    if (hours < 0.5) return 0.35;
    if (hours < 1) return 0.55;
    return hours < 2 ? 0.78 : 1.0;
}

TileLook tile(const GridDay& day, std::uint32_t accent) {
    if (day.isFuture) return {kWhite, 0.02, TileLook::Outline{0.05, std::nullopt}};
    TileLook look;
    if (const auto strength = opacity(day.hours)) {
        look.fill = day.color.value_or(accent);
        look.fillOpacity = *strength;
    }
    if (day.isToday) look.outline = TileLook::Outline{0.38, 1.5};
    return look;
}

double weekDelay(int index) { return 0.2 + index * 0.05; }

std::vector<double> startBars(std::span<const int> counts) {
    std::vector<double> bars(counts.size(), 0.0);
    const int highest = counts.empty() ? 0 : std::ranges::max(counts);
    if (highest > 0)
        std::ranges::transform(counts, bars.begin(), [highest](int count) {
            return static_cast<double>(count) / highest;
        });
    return bars;
}

} // namespace vantle::rhythmmap
