#include "review/WhenCard.h"

#include "base/DateText.h"
#include "base/HourLabel.h"
#include "base/Words.h"
#include "review/RhythmMap.h"
#include "tracking/DashFormat.h"

namespace vantle::reviewcards {

namespace {

using cardwords::withOpenSpaces;

std::vector<FactBox> facts(const WrappedStats& stats, const WrappedSettings& settings) {
    const DurationStyle style = settings.durationStyle;
    std::vector<FactBox> boxes;
    if (stats.typicalStart)
        boxes.push_back({Words::tr("TYPICAL START"), withOpenSpaces(*stats.typicalStart), {}});
    if (stats.longest)
        boxes.push_back({Words::tr("LONGEST SESSION"),
                         dashformat::sessionDuration(stats.longest->activeSeconds, style),
                         {}});
    if (stats.biggestDay) {
        const DateText date =
            DateText::fixed(Words::tr("EEE, MMM d", "date pattern"), settings.calendar);
        boxes.push_back({Words::tr("BIGGEST DAY"),
                         dashformat::inlineHours(stats.biggestDay->hours, style),
                         date(stats.biggestDay->day)});
    }
    return boxes;
}

} // namespace

std::optional<WhenCard> when(const WrappedStats& stats, const WrappedSettings& settings) {
    if (!stats.startRhythm) return std::nullopt;
    const StartRhythm& rhythm = *stats.startRhythm;
    const auto bars = rhythmmap::startBars(rhythm.counts);
    WhenCard card;
    card.kicker = Words::tr("WHEN YOU BUILD");
    card.headline = rhythm.headline;
    card.detail = withOpenSpaces(rhythm.detail.value_or(QString()));
    card.bars = QList<double>(bars.begin(), bars.end());
    card.peakBar = rhythm.peakHour / 2;
    for (const int hour : {0, 6, 12, 18, 0})
        card.hourMarks << withOpenSpaces(hourLabel(hour, settings.calendar.locale));
    card.accent = QColor::fromRgb(cardwords::leadingColor(stats));
    card.chartCaption = Words::tr("when sessions begin");
    card.chartLabel = Words::tr("Session starts by hour of day");
    card.peak = Words::tr("PEAK · %1")
                    .arg(withOpenSpaces(hourLabel(rhythm.peakHour, settings.calendar.locale)));
    card.facts = facts(stats, settings);
    return card;
}

HighPointsCard highPoints(const WrappedStats& stats) {
    HighPointsCard card;
    card.kicker = Words::tr("HIGH POINTS");
    card.sentence = Words::tr("The numbers worth saying out loud %1")
                        .arg(wrappedperiod::inSentence(stats.period));
    for (const SuperlativeLine& line : stats.superlatives)
        card.lines.push_back({line.icon, QColor::fromRgb(line.tintHex), line.text});
    return card;
}

} // namespace vantle::reviewcards
