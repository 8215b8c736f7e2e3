#include "surfaces/notes/DayLabels.h"

#include "base/Words.h"

namespace vantle {

DayLabels::DayLabels(Date now, const Calendar& calendar)
    : m_wall(calendar)
    , m_today(m_wall.at(now).day)
    , m_thisYear(DateText::fixed(Words::tr("EEE, MMM d", "date pattern"), calendar))
    , m_otherYears(DateText::fixed(Words::tr("MMM d, yyyy", "date pattern"), calendar)) {}

QString DayLabels::operator()(Date day) {
    const localtime::Day number = m_wall.at(day).day;
    if (number == m_today) return Words::tr("Today");
    if (number == m_today - 1) return Words::tr("Yesterday");
    const bool isThisYear = m_wall.yearOf(number) == m_wall.yearOf(m_today);
    return isThisYear ? m_thisYear(day) : m_otherYears(day);
}

} // namespace vantle
