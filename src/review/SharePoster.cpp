#include "review/SharePoster.h"

#include <algorithm>

namespace vantle::reviewcards {

namespace {

/// A dot for each finished hour, the newest first. A short period lends the colours of its skills.
QList<QColor> posterColors(const WrappedStats& stats) {
    QList<QColor> colors = cardwords::dotColors(stats, posterDots);
    std::ranges::reverse(colors);
    if (!colors.isEmpty()) return colors;
    for (const auto& [skill, hours] : stats.skillHours)
        colors << QColor::fromRgb(skill.hexRGB);
    if (colors.isEmpty()) colors << QColor::fromRgb(cardwords::accent);
    return colors;
}

PosterFigure counted(int count, const QString& one, const QString& many) {
    return {{QString::number(count), {}}, count == 1 ? one : many};
}

} // namespace

SharePoster poster(const WrappedStats& stats, const WrappedSettings& settings) {
    SharePoster poster;
    poster.wordmark = QStringLiteral("Vantle");
    poster.title = wrappedperiod::summaryTitle(stats.period);
    poster.dotColors = posterColors(stats);
    if (stats.persona) {
        poster.personaName = stats.persona->name;
        poster.startColor = QColor::fromRgb(stats.persona->startHex);
        poster.endColor = QColor::fromRgb(stats.persona->endHex);
    }
    poster.hours = cardwords::figure(stats.totalHours, settings.durationStyle);
    poster.closing = stats.closingLine(settings.durationStyle);
    poster.rhythmKicker = QStringLiteral("YOUR RHYTHM");
    const RhythmDays today{settings.now, settings.calendar, {}};
    poster.rhythm = rhythmPicture(stats, settings,
                                  rhythmmap::yearShown(std::nullopt, stats.activeYears, today));
    poster.breakdown = skillLines(stats, settings, posterSkills);
    if (!poster.breakdown.empty()) poster.breakdownKicker = QStringLiteral("THE BREAKDOWN");
    poster.figures = {
        {poster.hours, QStringLiteral("TOTAL")},
        counted(stats.sessionCount, QStringLiteral("SESSION"), QStringLiteral("SESSIONS")),
        counted(stats.activeDays, QStringLiteral("ACTIVE DAY"), QStringLiteral("ACTIVE DAYS"))};
    poster.footer = QStringLiteral("Vantle · the work is adding up");
    return poster;
}

} // namespace vantle::reviewcards
