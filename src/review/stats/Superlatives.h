// The high points of a period: each possible one is scored, and the strongest are told.
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
    QString text;              ///< one sentence, by which it is also known
    double score = 0;          ///< the higher, the earlier it is told
    friend bool operator==(const SuperlativeLine&, const SuperlativeLine&) = default;
};

/// What the high points are drawn from.
struct SuperlativeFacts {
    WrappedPeriod period = WrappedPeriod::Today;
    double totalHours = 0;
    int activeDays = 0;             ///< days with work
    std::optional<int> daysElapsed; ///< none for all time
    int goalHitDays = 0;
    double biggestDayHours = 0; ///< 0 when there is none
    std::optional<Session> longest;
    std::optional<int> weekRank; ///< 1 for the best week so far
};

/// The three highest scores at most, highest first; of equal ones the more important kind first.
[[nodiscard]] std::vector<SuperlativeLine> pickSuperlatives(const SuperlativeFacts& facts,
                                                            const std::vector<Skill>& skills,
                                                            DurationStyle durationStyle);

} // namespace vantle
