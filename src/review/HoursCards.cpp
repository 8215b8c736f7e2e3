#include "review/HoursCards.h"

#include "base/Bidi.h"
#include "base/DateText.h"
#include "base/Words.h"
#include "tracking/DashFormat.h"

#include <algorithm>

namespace vantle {

QString SkillLine::spoken() const {
    QStringList parts{name, hours, share};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QString MilestoneBadge::spoken() const {
    return Words::tr("%1 hours, %2").arg(QString::number(hours), bidi::isolated(date));
}

} // namespace vantle

namespace vantle::reviewcards {

namespace {

QString weekBefore(const WrappedStats& stats, DurationStyle style) {
    if (!stats.lastWeekHours) return {};
    const QString text = stats.period == WrappedPeriod::LastWeek ? Words::tr("The week before: %1")
                                                                 : Words::tr("Last week: %1");
    return text.arg(dashformat::inlineHours(*stats.lastWeekHours, style));
}

QString origin(const WrappedStats& stats, DurationStyle style) {
    const bool isTracked = stats.verifiedHours > 0;
    if (stats.manualHours <= 0) return isTracked ? Words::tr("All of it tracked live") : QString();
    if (!isTracked) return Words::tr("All of it logged by hand");
    return Words::tr("%1 tracked live · %2 logged by hand")
        .arg(dashformat::inlineHours(stats.verifiedHours, style),
             dashformat::inlineHours(stats.manualHours, style));
}

QString noted(int count) {
    if (count < 1) return {};
    return count == 1 ? Words::tr("1 session has a note")
                      : Words::tr("%n sessions have notes", nullptr, count);
}

/// The colours of the log's first `hours` hours, scaled to the dots of a ring.
QList<QColor> ringOf(int hours, const std::vector<totals::DotRun>& log) {
    QList<QColor> ring;
    std::int64_t end = 0; // in hours, of the runs so far
    for (const totals::DotRun& run : log) {
        end += run.count;
        while (ring.size() < ringDots && ring.size() * hours / ringDots < end)
            ring << QColor::fromRgb(run.skill.hexRGB);
    }
    return ring;
}

QString crossed(const WrappedStats& stats) {
    const int count = static_cast<int>(stats.milestones.size());
    const QString text = count == 1 ? Words::tr("You crossed a milestone %1")
                                    : Words::tr("You crossed %n milestones %1", nullptr, count);
    return text.arg(wrappedperiod::inSentence(stats.period));
}

} // namespace

HeroCard hero(const WrappedStats& stats, const WrappedSettings& settings) {
    const DurationStyle style = settings.durationStyle;
    QStringList quiet = {weekBefore(stats, style), origin(stats, style),
                         noted(stats.notedSessionCount)};
    quiet.removeAll(QString());
    return {Words::tr("WRAPPED"),
            Words::tr("You built for"),
            stats.totalHours,
            dashformat::inlineHours(stats.totalHours, style),
            cardwords::figure(stats.totalHours, style),
            wrappedperiod::inSentence(stats.period),
            cardwords::sessions(stats.sessionCount),
            quiet};
}

std::vector<SkillLine> skillLines(const WrappedStats& stats, const WrappedSettings& settings,
                                  std::size_t shown) {
    std::vector<SkillLine> lines;
    for (const auto& [skill, hours] : cardwords::firstOf(stats.skillHours, shown))
        lines.push_back({skill.name, QColor::fromRgb(skill.hexRGB),
                         dashformat::inlineHours(hours, settings.durationStyle),
                         cardwords::share(hours, stats), hours / stats.skillHours.front().hours});
    return lines;
}

SkillsCard skillsWithoutTime(const WrappedStats& stats, const WrappedSettings& settings) {
    SkillsCard card;
    card.kicker = Words::tr("TOP SKILL");
    card.top.name = Words::tr("Nothing %1 yet").arg(wrappedperiod::inSentence(stats.period));
    card.top.hours = dashformat::inlineHours(0, settings.durationStyle);
    card.topFigure = cardwords::figure(0, settings.durationStyle);
    return card;
}

std::optional<SkillsCard> skills(const WrappedStats& stats, const WrappedSettings& settings,
                                 std::size_t shown) {
    std::vector<SkillLine> lines = skillLines(stats, settings, std::max<std::size_t>(shown, 1));
    if (lines.empty()) return std::nullopt;
    SkillsCard card;
    card.kicker = Words::tr("TOP SKILL");
    card.top = lines.front();
    card.topFigure = cardwords::figure(stats.skillHours.front().hours, settings.durationStyle);
    if (stats.skillHours.size() > 1) card.breakdownKicker = Words::tr("THE BREAKDOWN");
    if (const std::size_t left = stats.skillHours.size() - lines.size(); left > 0)
        card.more = Words::tr("+%1 more").arg(left);
    card.others.assign(lines.begin() + 1, lines.end());
    return card;
}

std::optional<MilestonesCard> milestones(const WrappedStats& stats,
                                         const WrappedSettings& settings) {
    if (stats.milestones.empty()) return std::nullopt;
    MilestonesCard card;
    card.kicker = Words::tr("MILESTONES");
    card.sentence = crossed(stats);
    const DateText date = DateText::fixed(Words::tr("MMM d", "date pattern"), settings.calendar);
    for (const totals::Badge& badge : stats.milestones)
        card.badges.push_back(
            {badge.hours, date(badge.earnedAt), ringOf(badge.hours, stats.milestoneDots)});
    return card;
}

} // namespace vantle::reviewcards
