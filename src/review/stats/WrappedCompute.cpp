// The computation of a WrappedStats from the log.
#include "base/Rounding.h"
#include "base/Text.h"
#include "review/stats/EarlierWeeks.h"
#include "review/stats/LogWalk.h"
#include "review/stats/PersonaWindow.h"
#include "review/stats/WrappedStats.h"
#include "tracking/SkillList.h"

#include <algorithm>
#include <numeric>

namespace vantle {

namespace {

double asHours(std::int64_t seconds) { return static_cast<double>(seconds) / 3600.0; }

Interval intervalOf(WrappedPeriod period, const WrappedSettings& settings) {
    Interval interval;
    if (const auto start = wrappedperiod::start(period, settings.now, settings.calendar))
        interval.start = *start;
    if (const auto end = wrappedperiod::end(period, settings.now, settings.calendar))
        interval.end = *end;
    return interval;
}

std::vector<Skill> shownSkills(const SkillNumbers& numbers, const std::vector<Skill>& skills) {
    std::vector<Skill> shown;
    for (std::size_t number = 0; number < numbers.count(); ++number)
        shown.push_back(SkillList::display(numbers.idOf(number), skills));
    return shown;
}

/// For each skill number, its position in the order of ids.
std::vector<std::size_t> placesById(const SkillNumbers& numbers) {
    std::vector<std::size_t> inOrder(numbers.count());
    std::iota(inOrder.begin(), inOrder.end(), std::size_t{0});
    std::ranges::sort(inOrder, [&](std::size_t left, std::size_t right) {
        return text::codePointLess(numbers.idOf(left), numbers.idOf(right));
    });
    std::vector<std::size_t> places(inOrder.size());
    for (std::size_t place = 0; place < inOrder.size(); ++place)
        places[inOrder[place]] = place;
    return places;
}

/// The days of the whole log: `workedDays` and `activeYears`.
void addDays(WrappedStats& stats, const LogWalk& walk, const std::vector<Skill>& skills,
             LocalTime& local) {
    const std::vector<Skill> shown = shownSkills(walk.skills, skills);
    const std::vector<std::size_t> places = placesById(walk.skills);
    const auto isMore = [&](const DayLedger::Share& left, const DayLedger::Share& right) {
        if (left.seconds != right.seconds) return left.seconds > right.seconds;
        return places[left.skill] < places[right.skill];
    };
    stats.workedDays.reserve(walk.days.entries().size());
    for (const DayLedger::Entry& entry : walk.days.entries()) {
        const auto winner = std::ranges::min_element(walk.days.shares(entry), isMore);
        stats.workedDays.push_back(
            {local.startOfDay(entry.day), asHours(entry.seconds), shown[winner->skill].hexRGB});
        if (entry.seconds < 1) continue;
        const int year = local.yearOf(entry.day);
        if (stats.activeYears.empty() || stats.activeYears.back() != year)
            stats.activeYears.push_back(year);
    }
    std::ranges::reverse(stats.activeYears);
}

/// Adds the sums over the period's records.
void addRecords(WrappedStats& stats, const LogWalk& walk, const WrappedSettings& settings) {
    const PeriodSums& sums = walk.sums;
    stats.sessionCount = static_cast<int>(walk.period.size());
    stats.notedSessionCount = static_cast<int>(sums.noted.size());
    stats.totalHours = asHours(sums.trackedSeconds + sums.manualSeconds);
    stats.verifiedHours = asHours(sums.trackedSeconds);
    stats.manualHours = asHours(sums.manualSeconds);
    if (sums.longest) stats.longest = *sums.longest;
    stats.hourDots = sums.dots.runs(settings.skills);
    stats.typicalStart = sums.starts.typicalStart(settings.calendar.locale);
    stats.startRhythm = StartRhythm::compute(sums.starts);
    stats.noteDigest = WrappedNoteDigest::compute(sums.noted, settings.skills);
}

void addSkillHours(WrappedStats& stats, const DayLedger& days, const SkillNumbers& numbers,
                   const std::vector<Skill>& skills) {
    const std::vector<Skill> shown = shownSkills(numbers, skills);
    const std::vector<std::int64_t> seconds = days.secondsPerSkill();
    for (std::size_t number = 0; number < seconds.size(); ++number)
        if (seconds[number] > 0)
            stats.skillHours.push_back({shown[number], asHours(seconds[number])});
    std::ranges::sort(stats.skillHours, [](const auto& left, const auto& right) {
        if (left.hours != right.hours) return left.hours > right.hours;
        return text::codePointLess(left.skill.id, right.skill.id);
    });
}

/// Sums over the period's days.
void addPeriodDays(WrappedStats& stats, const DayLedger& days, double dailyGoalHours,
                   LocalTime& local) {
    const std::int64_t goal = std::max<std::int64_t>(60, roundedToInteger(dailyGoalHours * 3600.0));
    const DayLedger::Entry* biggest = nullptr;
    for (const DayLedger::Entry& entry : days.entries()) {
        if (entry.seconds >= 1) ++stats.activeDays;
        if (entry.seconds >= goal) ++stats.goalHitDays;
        if (!biggest || entry.seconds >= biggest->seconds) biggest = &entry;
    }
    if (biggest) stats.biggestDay = {local.startOfDay(biggest->day), asHours(biggest->seconds)};
}

/// A ledger of the period alone.
DayLedger daysOf(SessionRefs sessions, SkillNumbers& numbers, LocalTime& local) {
    DayLedger days;
    for (const Session* session : sessions)
        days.add(local.at(session->endedAt).day, numbers.of(session->skillId),
                 session->activeSeconds);
    days.close();
    return days;
}

std::vector<totals::Badge> earnedIn(const Interval& period, std::vector<totals::Badge> badges) {
    std::erase_if(badges,
                  [&](const totals::Badge& badge) { return !period.contains(badge.earnedAt); });
    return badges;
}

/// Adds the figures of the period's ledger; `numbers` maps its skills.
void addLedger(WrappedStats& stats, const DayLedger& days, const SkillNumbers& numbers,
               const WrappedSettings& settings, LocalTime& local) {
    addSkillHours(stats, days, numbers, settings.skills);
    addPeriodDays(stats, days, settings.dailyGoalHours, local);
}

void addPersona(WrappedStats& stats, const LogWalk& walk, const WrappedSettings& settings,
                LocalTime& local) {
    const PersonaWindow window = PersonaWindow::choose(stats.period, walk);
    stats.personaSessionCount = static_cast<int>(window.sessions.size());
    stats.personaScope = window.scope;
    if (window.isEnough(local))
        stats.persona =
            builderpersona::compute(window.sessions, settings.calendar, settings.durationStyle);
}

void addSuperlatives(WrappedStats& stats, std::optional<int> weekRank,
                     const WrappedSettings& settings) {
    SuperlativeFacts facts;
    facts.period = stats.period;
    facts.totalHours = stats.totalHours;
    facts.activeDays = stats.activeDays;
    facts.daysElapsed = wrappedperiod::daysElapsed(stats.period, settings.now, settings.calendar);
    facts.goalHitDays = stats.goalHitDays;
    facts.biggestDayHours = stats.biggestDay ? stats.biggestDay->hours : 0.0;
    facts.longest = stats.longest;
    facts.weekRank = weekRank;
    stats.superlatives = pickSuperlatives(facts, settings.skills, settings.durationStyle);
}

} // namespace

WrappedStats WrappedStats::compute(const std::vector<Session>& allSessions, WrappedPeriod period,
                                   const WrappedSettings& settings) {
    const Calendar& calendar = settings.calendar;
    const bool isAllTime = period == WrappedPeriod::AllTime;
    LocalTime local(calendar);
    LogWalk::Plan plan{settings.now, intervalOf(period, settings)};
    PersonaWindow::addWeeks(plan, period, calendar);
    const LogWalk walk(allSessions, plan, local);

    WrappedStats stats;
    stats.period = period;
    addDays(stats, walk, settings.skills, local);
    addRecords(stats, walk, settings);
    if (isAllTime) {
        addLedger(stats, walk.days, walk.skills, settings, local);
    } else {
        SkillNumbers numbers;
        const DayLedger days = daysOf(walk.period, numbers, local);
        addLedger(stats, days, numbers, settings, local);
    }
    stats.milestones = earnedIn(plan.period, walk.badges);
    if (!stats.milestones.empty())
        stats.milestoneDots = isAllTime
                                  ? stats.hourDots
                                  : totals::hourDotRuns(allSessions, settings.now, settings.skills);
    addPersona(stats, walk, settings, local);

    std::optional<int> weekRank;
    if (wrappedperiod::isAWeek(period)) {
        const EarlierWeeks weeks(allSessions, settings.now, plan.period.start, calendar);
        stats.lastWeekHours = weeks.lastWeekHours;
        weekRank = weeks.rankOf(stats.totalHours);
    }
    addSuperlatives(stats, weekRank, settings);
    return stats;
}

} // namespace vantle
