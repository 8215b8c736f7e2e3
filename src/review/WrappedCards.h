// The pages of a review, its picker, and its empty state.
//
// Plain values and pure functions, any thread.
#pragma once

#include "review/stats/WrappedStats.h"

#include <QString>

#include <optional>
#include <vector>

namespace vantle {

/// The pages in order.
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

/// Everything that decides which pages there are.
struct Facts {
    WrappedPeriod period = WrappedPeriod::Today;
    int sessionCount = 0;
    bool hasStartRhythm = false;
    std::size_t superlativeCount = 0;
    int goalHitDays = 0;
    std::size_t milestoneCount = 0;
    bool hasNarrative = false; ///< for this period
    bool hasNoteDigest = false;
};
[[nodiscard]] Facts facts(const WrappedStats& stats, bool hasNarrative);

/// Empty without a session: the review then shows a single card.
[[nodiscard]] std::vector<WrappedCard> cards(const Facts& facts);

/// The periods to choose from. Last week comes first while it is shown; otherwise it is not
/// offered.
[[nodiscard]] std::vector<WrappedPeriod> segments(WrappedPeriod shown);

struct EmptyCard {
    QString title;
    QString text;
};
[[nodiscard]] EmptyCard emptyCard(WrappedPeriod period, bool isLogEmpty);

} // namespace wrappedcards
} // namespace vantle
