// Which pages a review has, how its picker reads, and what stands there when there is nothing.
//
// Plain values and pure functions, any thread.
#pragma once

#include "review/stats/WrappedStats.h"

#include <QString>

#include <optional>
#include <vector>

namespace vantle {

/// The pages, in the order in which they are turned.
enum class WrappedCard {
    Hero,
    Skills,
    Persona,
    Rhythm,
    When,
    Superlatives,
    Milestones,
    Narrative,
    Notes,
    Summary
};

namespace wrappedcards {

[[nodiscard]] QString id(WrappedCard card); ///< "superlatives"

/// All that the list of pages hangs on.
struct Facts {
    WrappedPeriod period = WrappedPeriod::Today;
    int sessionCount = 0;
    bool hasStartRhythm = false;
    std::size_t superlativeCount = 0;
    int goalHitDays = 0;
    std::size_t milestoneCount = 0;
    bool hasNarrative = false; ///< of this very period
    bool hasNoteDigest = false;
};
[[nodiscard]] Facts facts(const WrappedStats& stats, bool hasNarrative);

/// Empty without a session: then the review shows one card without pages.
[[nodiscard]] std::vector<WrappedCard> cards(const Facts& facts);

/// The periods to choose from. Last week stands first while it is the one that is shown, and is not
/// offered otherwise.
[[nodiscard]] std::vector<WrappedPeriod> segments(WrappedPeriod shown);

struct EmptyCard {
    QString title;
    QString text;
};
[[nodiscard]] EmptyCard emptyCard(WrappedPeriod period, bool isLogEmpty);

} // namespace wrappedcards
} // namespace vantle
