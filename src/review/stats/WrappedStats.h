// Everything that a review of one period shows, as one value.
//
// Computed from the log whenever a review is opened or its period changes; nothing of it is stored.
// Hours are seconds / 3600.0 without rounding. Pure: the same records, moment and settings give the
// same value. Any thread.
#pragma once

#include "base/Calendar.h"
#include "review/stats/BuilderPersona.h"
#include "review/stats/NoteDigest.h"
#include "review/stats/StartRhythm.h"
#include "review/stats/Superlatives.h"
#include "review/stats/WrappedPeriod.h"
#include "tracking/DurationStyle.h"
#include "tracking/Session.h"
#include "tracking/Skill.h"
#include "tracking/Totals.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace vantle {

/// What a review depends on beside the log.
struct WrappedSettings {
    Date now;
    Calendar calendar;
    std::vector<Skill> skills; ///< the person's list, for names and colours
    DurationStyle durationStyle = DurationStyle::Natural;
    double dailyGoalHours = 2.0;
};

struct WrappedStats {
    struct SkillHours {
        Skill skill; ///< as it is shown, also when it was deleted since
        double hours = 0;
    };
    struct BiggestDay {
        Date day; ///< its first moment
        double hours = 0;
    };
    struct WorkedDay {
        Date day; ///< its first moment
        double hours = 0;
        std::uint32_t hexRGB = 0; ///< of the skill with the most time on that day
    };

    WrappedPeriod period = WrappedPeriod::Today;

    // Of the records that ended in the period
    int sessionCount = 0;
    double totalHours = 0;
    std::vector<SkillHours> skillHours;   ///< those with time, the most first
    std::optional<Session> longest;       ///< the first with the most active seconds
    std::optional<BiggestDay> biggestDay; ///< the last with the most hours
    std::optional<QString> typicalStart;  ///< the middle start, the hour alone: "9 AM"
    std::optional<StartRhythm> startRhythm;

    // Of the whole log
    std::vector<WorkedDay> workedDays; ///< every day with a record, oldest first
    std::vector<int> activeYears;      ///< with at least a second of work, latest first

    std::vector<totals::Badge> milestones;     ///< earned in the period, by the whole log
    std::vector<totals::DotRun> milestoneDots; ///< the whole log's hours; none without a milestone
    double verifiedHours = 0;                  ///< tracked in the period
    double manualHours = 0;                    ///< logged by hand
    int notedSessionCount = 0;                 ///< with a note, be it blank
    int activeDays = 0;                        ///< days with at least a second
    std::optional<WrappedNoteDigest> noteDigest;
    std::vector<totals::DotRun> hourDots; ///< the period's own wall of hours

    std::optional<BuilderPersona> persona; ///< none where its window holds too little to judge
    int personaSessionCount = 0;           ///< in that window
    QString personaScope;                  ///< what the window is: "this week"

    std::vector<SuperlativeLine> superlatives; ///< at most three
    int goalHitDays = 0;                       ///< days that reached the daily goal
    std::optional<double> lastWeekHours;       ///< for a week: those of the week before

    /// The review of `period` over a log as TrackerCore::allSessions gives it, oldest first.
    [[nodiscard]] static WrappedStats compute(const std::vector<Session>& allSessions,
                                              WrappedPeriod period,
                                              const WrappedSettings& settings);

    /// The skill with the most time in the period.
    [[nodiscard]] std::optional<Skill> topSkill() const;

    /// "12.5 h across 9 sessions, led by Build."
    [[nodiscard]] QString closingLine(DurationStyle durationStyle) const;

    /// Hours of the day that begins at `day`; 0 for one without records.
    [[nodiscard]] double dayHours(Date day) const;

    /// The colour of the day that begins at `day`, 0xRRGGBB; none for one without records.
    [[nodiscard]] std::optional<std::uint32_t> dayColor(Date day) const;
};

} // namespace vantle
