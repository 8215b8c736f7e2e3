#include "surfaces/notes/DayLabels.h"

namespace vantle {

DayLabels::DayLabels(Date now, const Calendar& calendar)
    : m_wall(calendar)
    , m_today(m_wall.at(now).day)
    , m_thisYear(DateText::fixed(QStringLiteral("EEE, MMM d"), calendar))
    , m_otherYears(DateText::fixed(QStringLiteral("MMM d, yyyy"), calendar)) {}

QString DayLabels::operator()(Date day) {
    const localtime::Day number = m_wall.at(day).day;
    if (number == m_today) return QStringLiteral("Today");
    if (number == m_today - 1) return QStringLiteral("Yesterday");
    const bool isThisYear = m_wall.yearOf(number) == m_wall.yearOf(m_today);
    return isThisYear ? m_thisYear(day) : m_otherYears(day);
}

} // namespace vantle
