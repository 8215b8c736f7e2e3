// The high points of a period, scored and ranked.
//
// Plain values and pure functions, any thread.
#pragma once

#include "review/stats/WrappedPeriod.h"
#include "tracking/DurationStyle.h"
#include "tracking/Session.h"
#include "tracking/Skill.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace vantle {

struct SuperlativeLine {
    QString icon;              ///< name of its symbol
    std::uint32_t tintHex = 0; ///< 0xRRGGBB
    QString text;              ///< one sentence, which also identifies it
    double score = 0;          ///< higher comes first
    friend bool operator==(const SuperlativeLine&, const SuperlativeLine&) = default;
};

/// The data for the high points.
struct SuperlativeFacts {
    WrappedPeriod period = WrappedPeriod::Today;
    double totalHours = 0;
    int activeDays = 0;             ///< days with work
    std::optional<int> daysElapsed; ///< empty for all time
    int goalHitDays = 0;
    double biggestDayHours = 0; ///< 0 when there is none
    std::optional<Session> longest;
    std::optional<int> weekRank; ///< 1 for the best week so far
};

/// Returns up to three, by score; equal scores in order of importance.
[[nodiscard]] std::vector<SuperlativeLine> pickSuperlatives(const SuperlativeFacts& facts,
                                                            const std::vector<Skill>& skills,
                                                            DurationStyle durationStyle);

} // namespace vantle
