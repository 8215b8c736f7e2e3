#include "review/stats/WrappedPeriod.h"

#include "base/LocalTime.h"
#include "base/Words.h"

#include <algorithm>

namespace vantle::wrappedperiod {

namespace {

struct Names {
    QString id;
    QString fileSuffix;
    const char* label; ///< source texts, like those below
    const char* pickerLabel;
    const char* inSentence;
    const char* summaryTitle;
};

const Names& names(WrappedPeriod period) {
    static const std::array<Names, 5> table = {{
        {QStringLiteral("today"), QStringLiteral("today"), QT_TRANSLATE_NOOP("Words", "Today"),
         QT_TRANSLATE_NOOP("Words", "Today"), QT_TRANSLATE_NOOP("Words", "today"),
         QT_TRANSLATE_NOOP("Words", "YOUR DAY, IN FULL")},
        {QStringLiteral("week"), QStringLiteral("this-week"),
         QT_TRANSLATE_NOOP("Words", "This week"), QT_TRANSLATE_NOOP("Words", "Week"),
         QT_TRANSLATE_NOOP("Words", "this week"), QT_TRANSLATE_NOOP("Words", "YOUR WEEK, IN FULL")},
        {QStringLiteral("month"), QStringLiteral("this-month"),
         QT_TRANSLATE_NOOP("Words", "This month"), QT_TRANSLATE_NOOP("Words", "Month"),
         QT_TRANSLATE_NOOP("Words", "this month"),
         QT_TRANSLATE_NOOP("Words", "YOUR MONTH, IN FULL")},
        {QStringLiteral("allTime"), QStringLiteral("all-time"),
         QT_TRANSLATE_NOOP("Words", "All time"), QT_TRANSLATE_NOOP("Words", "All time"),
         QT_TRANSLATE_NOOP("Words", "all time"), QT_TRANSLATE_NOOP("Words", "YOUR WORK, IN FULL")},
        {QStringLiteral("lastWeek"), QStringLiteral("last-week"),
         QT_TRANSLATE_NOOP("Words", "Last week"), QT_TRANSLATE_NOOP("Words", "Last week"),
         QT_TRANSLATE_NOOP("Words", "last week"), QT_TRANSLATE_NOOP("Words", "YOUR WEEK, IN FULL")},
    }};
    return table[static_cast<std::size_t>(period)];
}

Date weekStart(Date now, const Calendar& calendar) {
    const auto start = calendar.startOfWeek(now);
    return start ? *start : calendar.startOfDay(now);
}

Date monthStart(Date now, const Calendar& calendar) {
    LocalTime local(calendar);
    return local.knowsZone() ? local.startOfDay(local.firstOfMonth(local.at(now).day))
                             : calendar.startOfDay(now);
}

} // namespace

QString id(WrappedPeriod period) { return names(period).id; }

QString label(WrappedPeriod period) { return Words::tr(names(period).label); }

QString pickerLabel(WrappedPeriod period) { return Words::tr(names(period).pickerLabel); }

QString inSentence(WrappedPeriod period) { return Words::tr(names(period).inSentence); }

QString fileSuffix(WrappedPeriod period) { return names(period).fileSuffix; }

QString summaryTitle(WrappedPeriod period) { return Words::tr(names(period).summaryTitle); }

std::optional<WrappedPeriod> fromId(const QString& text) {
    const auto found = std::ranges::find(all, text, id);
    return found != all.end() ? std::optional(*found) : std::nullopt;
}

std::optional<Date> start(WrappedPeriod period, Date now, const Calendar& calendar) {
    switch (period) {
    case WrappedPeriod::Today:
        return calendar.startOfDay(now);
    case WrappedPeriod::Week:
        return weekStart(now, calendar);
    case WrappedPeriod::Month:
        return monthStart(now, calendar);
    case WrappedPeriod::AllTime:
        return std::nullopt;
    case WrappedPeriod::LastWeek: {
        const Date thisWeek = weekStart(now, calendar);
        return calendar.addingWeeks(thisWeek, -1).value_or(thisWeek);
    }
    }
    Q_UNREACHABLE();
}

std::optional<Date> end(WrappedPeriod period, Date now, const Calendar& calendar) {
    if (period != WrappedPeriod::LastWeek) return std::nullopt;
    return weekStart(now, calendar);
}

std::optional<int> daysElapsed(WrappedPeriod period, Date now, const Calendar& calendar) {
    const auto first = start(period, now, calendar);
    if (!first) return std::nullopt;
    const auto over = end(period, now, calendar);
    LocalTime local(calendar);
    const auto lastDay = local.at(over ? *over - Seconds(1) : now).day;
    return static_cast<int>(lastDay - local.at(*first).day) + 1;
}

} // namespace vantle::wrappedperiod
