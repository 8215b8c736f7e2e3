#include "review/stats/StartRhythm.h"

#include "base/HourLabel.h"
#include "base/Words.h"

#include <algorithm>
#include <numeric>

namespace vantle {

namespace {

constexpr int kLeastSessions = 3;
constexpr double kLeastShareOfBand = 0.45;

using Hours = std::array<int, 24>;

/// The starts in the hours `first` to `last`, inclusive.
int startsIn(const Hours& perHour, int first, int last) {
    return std::accumulate(perHour.begin() + first, perHour.begin() + last + 1, 0);
}

QString withCounts(const QString& text, int count, int total) {
    return text.arg(QString::number(count), QString::number(total));
}

void putIntoWords(StartRhythm& rhythm, const Hours& perHour, int total) {
    const int early = startsIn(perHour, 0, 4);
    const std::array<int, 4> bands = {startsIn(perHour, 5, 11), startsIn(perHour, 12, 17),
                                      startsIn(perHour, 18, 22), perHour[23] + early};
    const auto most = std::ranges::max_element(bands); // the first of equal ones
    if (static_cast<double>(*most) / total < kLeastShareOfBand) {
        rhythm.headline = Words::tr("Your starts are spread across the whole day.");
        return;
    }
    switch (most - bands.begin()) {
    case 0:
        rhythm.headline = Words::tr("Most sessions started before noon.");
        rhythm.detail =
            withCounts(Words::tr("%1 of %2 sessions started before noon."), *most, total);
        return;
    case 1:
        rhythm.headline = Words::tr("Most sessions started in the afternoon.");
        rhythm.detail =
            withCounts(Words::tr("%1 of %2 sessions started between noon and 6 PM."), *most, total);
        return;
    case 2:
        rhythm.headline = Words::tr("Most sessions started after dark.");
        rhythm.detail =
            withCounts(Words::tr("%1 of %2 sessions started after 6 PM."), *most, total);
        return;
    default:
        // The night band starts at 23, but the text "after 10 PM" must hold for all it counts.
        rhythm.headline = Words::tr("Most sessions started late at night.");
        rhythm.detail = withCounts(Words::tr("%1 of %2 sessions started after 10 PM."),
                                   startsIn(perHour, 22, 23) + early, total);
        return;
    }
}

} // namespace

std::optional<int> StartTimes::medianMinutes() const {
    if (m_total < kLeastSessions) return std::nullopt;
    int before = 0;
    int minute = 0;
    while (before + m_perMinute[static_cast<std::size_t>(minute)] <= m_total / 2)
        before += m_perMinute[static_cast<std::size_t>(minute++)];
    return minute;
}

std::optional<QString> StartTimes::typicalStart(const QString& locale) const {
    const auto minutes = medianMinutes();
    if (!minutes) return std::nullopt;
    return hourLabel(*minutes / 60, locale);
}

std::array<int, 24> StartTimes::perHour() const {
    std::array<int, 24> hours{};
    for (std::size_t minute = 0; minute < m_perMinute.size(); ++minute)
        hours[minute / 60] += m_perMinute[minute];
    return hours;
}

std::optional<StartRhythm> StartRhythm::compute(const StartTimes& starts) {
    if (starts.total() < kLeastSessions) return std::nullopt;
    const Hours perHour = starts.perHour();
    StartRhythm rhythm;
    for (std::size_t hour = 0; hour < perHour.size(); ++hour)
        rhythm.counts[hour / 2] += perHour[hour];
    rhythm.peakHour = static_cast<int>(std::ranges::max_element(perHour) - perHour.begin());
    putIntoWords(rhythm, perHour, starts.total());
    return rhythm;
}

} // namespace vantle
