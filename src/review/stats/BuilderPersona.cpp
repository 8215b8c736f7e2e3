#include "review/stats/BuilderPersona.h"

#include "base/LocalTime.h"
#include "base/Rounding.h"
#include "base/Words.h"
#include "tracking/DashFormat.h"
#include "tracking/SkillNumbers.h"

#include <algorithm>

namespace vantle::builderpersona {

namespace {

/// A part of the day with a smaller share of the time does not stand for the whole.
constexpr double kLeastShareOfDayPart = 0.45;
constexpr double kMarathonSeconds = 4500.0;
constexpr double kSprintSeconds = 1500.0;
constexpr double kFocusedShare = 0.7;
constexpr double kOneOfManyShare = 0.15;
constexpr std::ptrdiff_t kMany = 3;

DayPart partOfHour(int hour) {
    if (hour >= 5 && hour <= 11) return DayPart::Morning;
    if (hour >= 12 && hour <= 17) return DayPart::Daylight;
    if (hour >= 18 && hour <= 22) return DayPart::Evening;
    return DayPart::Night;
}

/// Active seconds, at least 1 per session.
std::int64_t weight(const Session& session) {
    return std::max<std::int64_t>(session.activeSeconds, 1);
}

/// Halfway between start and end by the wall clock, pauses included.
Date midpoint(const Session& session) {
    return session.startedAt + (session.endedAt - session.startedAt) / 2;
}

struct Weights {
    std::array<std::int64_t, 4> ofDayPart{}; ///< Morning to Night
    std::vector<std::int64_t> ofSkill;
    double total = 0;
};

Weights weigh(SessionRefs sessions, const Calendar& calendar) {
    Weights weights;
    std::int64_t total = 0;
    LocalTime local(calendar);
    SkillNumbers skills;
    for (const Session* session : sessions) {
        const std::int64_t own = weight(*session);
        const DayPart part = partOfHour(local.at(midpoint(*session)).hour());
        weights.ofDayPart[static_cast<std::size_t>(part)] += own;
        const std::size_t skill = skills.of(session->skillId);
        if (skill == weights.ofSkill.size()) weights.ofSkill.push_back(0);
        weights.ofSkill[skill] += own;
        total += own;
    }
    weights.total = static_cast<double>(total);
    return weights;
}

DayPart dominantPart(const Weights& weights) {
    const auto most = std::ranges::max_element(weights.ofDayPart); // the earliest of equal ones
    if (static_cast<double>(*most) / weights.total < kLeastShareOfDayPart) return DayPart::Anytime;
    return allDayParts[static_cast<std::size_t>(most - weights.ofDayPart.begin())];
}

Style styleOf(double averageSeconds) {
    if (averageSeconds >= kMarathonSeconds) return Style::Marathon;
    return averageSeconds <= kSprintSeconds ? Style::Sprint : Style::Steady;
}

Focus focusOf(const Weights& weights) {
    const auto hasShare = [&](double least) {
        return [&weights, least](std::int64_t seconds) {
            return static_cast<double>(seconds) / weights.total >= least;
        };
    };
    if (std::ranges::any_of(weights.ofSkill, hasShare(kFocusedShare))) return Focus::Focused;
    const auto count = std::ranges::count_if(weights.ofSkill, hasShare(kOneOfManyShare));
    return count >= kMany ? Focus::Multi : Focus::Balanced;
}

} // namespace

std::optional<Axes> axes(SessionRefs sessions, const Calendar& calendar) {
    if (sessions.empty()) return std::nullopt;
    const Weights weights = weigh(sessions, calendar);
    const double average = weights.total / static_cast<double>(sessions.size());
    return Axes{dominantPart(weights), styleOf(average), focusOf(weights), average};
}

std::optional<BuilderPersona> compute(SessionRefs sessions, const Calendar& calendar,
                                      DurationStyle durationStyle) {
    const auto found = axes(sessions, calendar);
    if (!found) return std::nullopt;
    const std::int64_t pace = roundedToInteger(found->averageSeconds);
    BuilderPersona persona;
    persona.name = name(found->when, found->style, found->focus);
    persona.line = line(persona.name, found->when);
    persona.whenFact = whenFact(found->when);
    persona.paceFact =
        Words::tr("%1 average").arg(dashformat::sessionDuration(pace, durationStyle));
    const Gradient colors = gradient(persona.name);
    persona.startHex = colors.start;
    persona.endHex = colors.end;
    return persona;
}

} // namespace vantle::builderpersona
