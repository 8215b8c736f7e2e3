#include "surfaces/dashboard/DashboardFigures.h"

#include "base/DateText.h"
#include "base/Decimals.h"
#include "base/Words.h"
#include "surfaces/kit/tokens/Look.h"
#include "tracking/DashFormat.h"
#include "tracking/SessionGroup.h"
#include "tracking/SkillList.h"
#include "tracking/Totals.h"

#include <algorithm>
#include <cmath>

namespace vantle {

QString StatBlock::spoken() const {
    if (value.isEmpty()) return Words::tr("%1: %2").arg(title, invitation);
    const QString figure = unit.isEmpty() ? value : value + QLatin1Char(' ') + unit;
    return Words::tr("%1: %2, %3").arg(title, figure, context);
}

QString SkillTotalLine::spoken() const {
    return QStringList{name, hours, share}.join(QStringLiteral(", "));
}

QString RecentLine::spoken() const {
    QStringList parts{date, skillName, duration};
    if (isManual) parts << Words::tr("manual");
    return parts.join(QStringLiteral(", "));
}

} // namespace vantle

namespace vantle::dashboard {

namespace {

constexpr std::uint32_t kPink = look::kDark.barToday.rgb;
constexpr std::uint32_t kViolet = look::kDark.barWeek.rgb;
constexpr std::uint32_t kSky = look::kDark.barAllTime.rgb;

/// A smaller slice is invisible.
constexpr double kTrace = 0.02;

StatBlock block(const QString& title, double hours, double goal, std::uint32_t accent,
                DurationStyle style) {
    StatBlock stat;
    stat.title = title;
    stat.fraction = hours / goal;
    stat.accent = QColor::fromRgb(accent);
    if (hours > 0) {
        const auto text = dashformat::statValue(hours, style);
        stat.value = text.value;
        stat.unit = text.unit;
    }
    return stat;
}

StatBlock goalBlock(const QString& title, double hours, double goal, std::uint32_t accent,
                    const QString& contextForm, DurationStyle style) {
    StatBlock stat = block(title, hours, goal, accent, style);
    const QString goalText = dashformat::inlineHours(goal, style);
    stat.context = contextForm.arg(goalText);
    stat.invitation = Words::tr("%1 goal · a session starts the bar").arg(goalText);
    return stat;
}

} // namespace

std::vector<StatBlock> stats(const Sessions& sessions, const DashboardSetting& setting) {
    const auto& [now, calendar, skills, style, goal] = setting;
    const totals::Hours hours = totals::hours(sessions, now, calendar);
    const double milestone = dashformat::nextMilestone(hours.allTime);
    StatBlock all = block(Words::tr("All time"), hours.allTime, milestone, kSky, style);
    all.context = Words::tr("next milestone %1").arg(dashformat::inlineHours(milestone, style));
    all.invitation = Words::tr("Your first dot lights at 1 h");
    return {goalBlock(Words::tr("Today"), hours.today, goal, kPink, Words::tr("of %1 goal"), style),
            goalBlock(Words::tr("This week"), hours.thisWeek, goal * 7, kViolet, Words::tr("of %1"),
                      style),
            std::move(all)};
}

QList<QColor> wallColors(const Sessions& sessions, const DashboardSetting& setting) {
    QList<QColor> newestFirst;
    const auto runs = totals::hourDotRuns(sessions, setting.now, setting.skills);
    for (auto run = runs.rbegin(); run != runs.rend(); ++run)
        for (std::int64_t i = 0; i < run->count && newestFirst.size() < wallCells; ++i)
            newestFirst << QColor::fromRgb(run->skill.hexRGB);
    std::ranges::reverse(newestFirst);
    return newestFirst;
}

QString wallText(std::int64_t dots) {
    if (dots == 0) return Words::tr("Your first hour lights the first dot");
    return dots == 1 ? Words::tr("1 hour") : Words::tr("%n hours", nullptr, static_cast<int>(dots));
}

double partialFraction(std::int64_t loggedSeconds, std::int64_t activeSeconds) {
    const std::int64_t seconds = loggedSeconds % 3600 + std::max<std::int64_t>(activeSeconds, 0);
    return std::min(static_cast<double>(std::max<std::int64_t>(seconds, 0)) / 3600.0, 0.999);
}

double sliceFraction(double partialFraction, std::int64_t dots) {
    return partialFraction > kTrace && dots < wallCells ? partialFraction : 0;
}

QString wallLabel(std::int64_t dots, double partialFraction) {
    return Words::tr("Hour wall, %1 completed hours, current hour %2 percent complete")
        .arg(QString::number(dots), QString::number(std::lround(partialFraction * 100)));
}

std::vector<SkillTotalLine> skillTotals(const Sessions& sessions, const DashboardSetting& setting) {
    auto totals = totals::perSkillTotals(sessions, setting.now, setting.skills);
    std::erase_if(totals, [](const auto& total) { return total.hours <= 0; });
    std::ranges::stable_sort(totals, std::ranges::greater(), &totals::SkillTotal::hours);
    double whole = 0;
    for (const auto& total : totals)
        whole += total.hours;
    std::vector<SkillTotalLine> lines;
    lines.reserve(totals.size());
    for (const auto& [skill, hours] : totals)
        lines.push_back({skill.name, QColor::fromRgb(skill.hexRGB), hours / totals.front().hours,
                         dashformat::inlineHours(hours, setting.style), shareText(hours, whole)});
    return lines;
}

QString shareText(double part, double whole) {
    const double percent = part / whole * 100;
    if (percent > 0 && percent < 0.5) return Words::tr("<1%");
    return shownPercent(percent);
}

std::vector<RecentLine> recent(const Sessions& sessions, const DashboardSetting& setting) {
    const auto groups = SessionGroup::grouped(sessions, recentGroups);
    const DateText date =
        DateText::fixed(Words::tr("MMM d · HH:mm", "date pattern"), setting.calendar);
    std::vector<RecentLine> lines;
    lines.reserve(groups.size());
    for (auto group = groups.rbegin(); group != groups.rend(); ++group) {
        const Skill skill = SkillList::display(group->skillId, setting.skills);
        lines.push_back({date(group->endedAt), QColor::fromRgb(skill.hexRGB), skill.name,
                         dashformat::sessionDuration(group->seconds, setting.style),
                         group->allManual});
    }
    return lines;
}

QString recentText(std::size_t count, std::int64_t seconds, DurationStyle style) {
    if (count == 0) return {};
    return (count == 1 ? Words::tr("1 session · %1")
                       : Words::tr("%n sessions · %1", nullptr, static_cast<int>(count)))
        .arg(dashformat::sessionDuration(seconds, style));
}

} // namespace vantle::dashboard
