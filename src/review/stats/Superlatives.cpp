#include "review/stats/Superlatives.h"

#include "base/Bidi.h"
#include "base/Decimals.h"
#include "base/Words.h"
#include "tracking/DashFormat.h"
#include "tracking/SkillList.h"

#include <algorithm>
#include <array>

namespace vantle {

namespace {

using Candidate = std::optional<SuperlativeLine>;

constexpr std::size_t kMostLines = 3;

Candidate bestWeek(const SuperlativeFacts& facts) {
    const std::array<QString, 3> texts = {Words::tr("Your best week yet."),
                                          Words::tr("Your 2nd best week."),
                                          Words::tr("Your 3rd best week.")};
    const int rank = facts.weekRank.value_or(0);
    if (rank < 1 || rank > 3) return std::nullopt;
    return SuperlativeLine{QStringLiteral("trophy.fill"), 0xFFD60A,
                           texts[static_cast<std::size_t>(rank - 1)], 108.0 - 10.0 * rank};
}

Candidate dailyGoal(const SuperlativeFacts& facts) {
    if (facts.goalHitDays < 1) return std::nullopt;
    const QString text = facts.goalHitDays == 1 ? Words::tr("You hit your daily goal once.")
                                                : Words::tr("You hit your daily goal %n times.",
                                                            nullptr, facts.goalHitDays);
    return SuperlativeLine{QStringLiteral("checkmark.circle.fill"), 0x30D158, text,
                           100.0 + facts.goalHitDays};
}

Candidate biggestDay(const SuperlativeFacts& facts) {
    if (facts.activeDays < 3 || facts.totalHours <= 0) return std::nullopt;
    const double ratio = facts.biggestDayHours / (facts.totalHours / facts.activeDays);
    if (ratio < 1.5) return std::nullopt;
    return SuperlativeLine{
        QStringLiteral("bolt.fill"), 0xFF9F0A,
        Words::tr("Your biggest day was %1x your average.").arg(shownDecimals(ratio, 1)),
        std::min(ratio, 6.0) * 8.0 + 50.0};
}

SuperlativeLine calendarLine(const QString& text, double score) {
    return {QStringLiteral("calendar"), 0x64D2FF, text, score};
}

Candidate daysWithWork(const SuperlativeFacts& facts) {
    const int active = facts.activeDays;
    if (!facts.daysElapsed) {
        if (active < 10) return std::nullopt;
        return calendarLine(Words::tr("You showed up on %n different days.", nullptr, active),
                            std::min(active, 100) * 0.5 + 40.0);
    }
    const int elapsed = *facts.daysElapsed;
    if (elapsed < 3 || active < 2) return std::nullopt;
    if (active >= elapsed)
        return calendarLine(Words::tr("You showed up every single day %1.")
                                .arg(wrappedperiod::inSentence(facts.period)),
                            90.0);
    const double share = static_cast<double>(active) / elapsed;
    if (share < 0.6) return std::nullopt;
    return calendarLine(Words::tr("You showed up %1 of %2 days.")
                            .arg(QString::number(active), QString::number(elapsed)),
                        share * 40.0 + 40.0);
}

Candidate longestSession(const SuperlativeFacts& facts, const std::vector<Skill>& skills,
                         DurationStyle durationStyle) {
    if (!facts.longest || facts.longest->activeSeconds < 5400) return std::nullopt;
    const std::int64_t seconds = facts.longest->activeSeconds;
    // One call for both arguments: a skill may be named "%2".
    const QString text =
        Words::tr("Longest session: %1 of %2.")
            .arg(dashformat::sessionDuration(seconds, durationStyle),
                 bidi::isolated(SkillList::display(facts.longest->skillId, skills).name));
    return SuperlativeLine{QStringLiteral("timer"), 0x7A78FF, text,
                           std::min(static_cast<double>(seconds) / 360.0 + 30.0, 90.0)};
}

Candidate hourMark(const SuperlativeFacts& facts) {
    constexpr std::array marks = {500, 250, 100, 50, 25, 10};
    const auto mark =
        std::ranges::find_if(marks, [&](int hours) { return facts.totalHours >= hours; });
    if (mark == marks.end()) return std::nullopt;
    const QString text =
        facts.period == WrappedPeriod::AllTime
            ? Words::tr("Your total has passed %1 hours.").arg(*mark)
            : Words::tr("You crossed the %1 hour mark %2.")
                  .arg(QString::number(*mark), wrappedperiod::inSentence(facts.period));
    return SuperlativeLine{QStringLiteral("sparkles"), 0xFFD60A, text, *mark / 10.0 + 45.0};
}

} // namespace

std::vector<SuperlativeLine> pickSuperlatives(const SuperlativeFacts& facts,
                                              const std::vector<Skill>& skills,
                                              DurationStyle durationStyle) {
    std::vector<SuperlativeLine> lines;
    for (const Candidate& candidate :
         {bestWeek(facts), dailyGoal(facts), biggestDay(facts), daysWithWork(facts),
          longestSession(facts, skills, durationStyle), hourMark(facts)})
        if (candidate) lines.push_back(*candidate);
    std::ranges::stable_sort(lines, std::greater{}, &SuperlativeLine::score);
    if (lines.size() > kMostLines) lines.resize(kMostLines);
    return lines;
}

} // namespace vantle
