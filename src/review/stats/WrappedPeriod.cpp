#include "review/stats/WrappedPeriod.h"

#include "base/LocalTime.h"

#include <algorithm>

namespace vantle::wrappedperiod {

namespace {

struct Names {
    QString id;
    QString label;
    QString pickerLabel;
    QString inSentence;
    QString fileSuffix;
    QString summaryTitle;
};

const Names& names(WrappedPeriod period) {
    static const std::array<Names, 5> table = {{
        {QStringLiteral("today"), QStringLiteral("Today"), QStringLiteral("Today"),
         QStringLiteral("today"), QStringLiteral("today"), QStringLiteral("YOUR DAY, IN FULL")},
        {QStringLiteral("week"), QStringLiteral("This week"), QStringLiteral("Week"),
         QStringLiteral("this week"), QStringLiteral("this-week"),
         QStringLiteral("YOUR WEEK, IN FULL")},
        {QStringLiteral("month"), QStringLiteral("This month"), QStringLiteral("Month"),
         QStringLiteral("this month"), QStringLiteral("this-month"),
         QStringLiteral("YOUR MONTH, IN FULL")},
        {QStringLiteral("allTime"), QStringLiteral("All time"), QStringLiteral("All time"),
         QStringLiteral("all time"), QStringLiteral("all-time"),
         QStringLiteral("YOUR WORK, IN FULL")},
        {QStringLiteral("lastWeek"), QStringLiteral("Last week"), QStringLiteral("Last week"),
         QStringLiteral("last week"), QStringLiteral("last-week"),
         QStringLiteral("YOUR WEEK, IN FULL")},
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

QString label(WrappedPeriod period) { return names(period).label; }

QString pickerLabel(WrappedPeriod period) { return names(period).pickerLabel; }

QString inSentence(WrappedPeriod period) { return names(period).inSentence; }

QString fileSuffix(WrappedPeriod period) { return names(period).fileSuffix; }

QString summaryTitle(WrappedPeriod period) { return names(period).summaryTitle; }

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
