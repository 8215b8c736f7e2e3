#include "review/SharePoster.h"

#include "base/Words.h"

#include <algorithm>

namespace vantle::reviewcards {

namespace {

/// One dot per finished hour, newest first. A short period repeats the colours of its skills.
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
        poster.personaName = builderpersona::shownName(stats.persona->name);
        poster.startColor = QColor::fromRgb(stats.persona->startHex);
        poster.endColor = QColor::fromRgb(stats.persona->endHex);
    }
    poster.hours = cardwords::figure(stats.totalHours, settings.durationStyle);
    poster.closing = stats.closingLine(settings.durationStyle);
    poster.rhythmKicker = Words::tr("YOUR RHYTHM");
    const RhythmDays today{settings.now, settings.calendar, {}};
    poster.rhythm = rhythmPicture(stats, settings,
                                  rhythmmap::yearShown(std::nullopt, stats.activeYears, today));
    poster.breakdown = skillLines(stats, settings, posterSkills);
    if (!poster.breakdown.empty()) poster.breakdownKicker = Words::tr("THE BREAKDOWN");
    poster.figures = {{poster.hours, Words::tr("TOTAL")},
                      counted(stats.sessionCount, Words::tr("SESSION"),
                              Words::tr("SESSIONS", nullptr, stats.sessionCount)),
                      counted(stats.activeDays, Words::tr("ACTIVE DAY"),
                              Words::tr("ACTIVE DAYS", nullptr, stats.activeDays))};
    poster.footer = Words::tr("Vantle · the work is adding up");
    return poster;
}

} // namespace vantle::reviewcards
