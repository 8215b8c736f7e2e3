// The content of one period's review, as a value.
//
// Computed from the log when a review opens or its period changes; never stored. Hours are seconds
// / 3600.0, unrounded. Pure: equal records, moment and settings give equal values. Any thread.
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

/// The parameters of a review beside the log.
struct WrappedSettings {
    Date now;
    Calendar calendar;
    std::vector<Skill> skills; ///< the user's list, for names and colours
    DurationStyle durationStyle = DurationStyle::Natural;
    double dailyGoalHours = 2.0;
};

struct WrappedStats {
    struct SkillHours {
        Skill skill; ///< as shown; exists for a deleted skill too
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
    std::vector<SkillHours> skillHours;   ///< with time only, most first
    std::optional<Session> longest;       ///< the first of equal ones
    std::optional<BiggestDay> biggestDay; ///< the last of equal ones
    std::optional<QString> typicalStart;  ///< hour of the median start: "9 AM"
    std::optional<StartRhythm> startRhythm;

    // Of the whole log
    std::vector<WorkedDay> workedDays; ///< each day with a record, oldest first
    std::vector<int> activeYears;      ///< with work, latest first

    std::vector<totals::Badge> milestones;     ///< earned in the period
    std::vector<totals::DotRun> milestoneDots; ///< dots of the whole log; empty without a milestone
    double verifiedHours = 0;                  ///< tracked in the period
    double manualHours = 0;                    ///< added by hand
    int notedSessionCount = 0;                 ///< with a note, even a blank one
    int activeDays = 0;                        ///< days with work
    std::optional<WrappedNoteDigest> noteDigest;
    std::vector<totals::DotRun> hourDots; ///< the period's own wall of hours

    std::optional<BuilderPersona> persona; ///< empty when its window is too small
    int personaSessionCount = 0;           ///< in that window
    QString personaScope;                  ///< the window as text: "this week"

    std::vector<SuperlativeLine> superlatives; ///< at most three
    int goalHitDays = 0;                       ///< days that reached the daily goal
    std::optional<double> lastWeekHours;       ///< hours of the previous week; for weeks only

    /// Computes the review of `period` from TrackerCore::allSessions, oldest first.
    [[nodiscard]] static WrappedStats compute(const std::vector<Session>& allSessions,
                                              WrappedPeriod period,
                                              const WrappedSettings& settings);

    /// Returns the skill with the most time in the period.
    [[nodiscard]] std::optional<Skill> topSkill() const;

    /// "12.5 h across 9 sessions, led by Build."
    [[nodiscard]] QString closingLine(DurationStyle durationStyle) const;

    /// Returns the hours of the day that begins at `day`; 0 without records.
    [[nodiscard]] double dayHours(Date day) const;

    /// Returns the colour of the day that begins at `day`, 0xRRGGBB; empty without records.
    [[nodiscard]] std::optional<std::uint32_t> dayColor(Date day) const;
};

} // namespace vantle
