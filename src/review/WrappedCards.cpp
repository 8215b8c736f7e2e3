#include "review/WrappedCards.h"

#include "base/Words.h"

#include <array>

namespace vantle::wrappedcards {

QString id(WrappedCard card) {
    static const std::array<QString, 10> ids = {
        QStringLiteral("hero"),       QStringLiteral("skills"),    QStringLiteral("persona"),
        QStringLiteral("rhythm"),     QStringLiteral("when"),      QStringLiteral("superlatives"),
        QStringLiteral("milestones"), QStringLiteral("narrative"), QStringLiteral("notes"),
        QStringLiteral("summary")};
    return ids[static_cast<std::size_t>(card)];
}

Facts facts(const WrappedStats& stats, bool hasNarrative) {
    return {stats.period,
            stats.sessionCount,
            stats.startRhythm.has_value(),
            stats.superlatives.size(),
            stats.goalHitDays,
            stats.milestones.size(),
            hasNarrative,
            stats.noteDigest.has_value()};
}

std::vector<WrappedCard> cards(const Facts& facts) {
    if (facts.sessionCount < 1) return {};
    std::vector<WrappedCard> list = {WrappedCard::Hero, WrappedCard::Skills};
    const auto addIf = [&list](bool isThere, WrappedCard card) {
        if (isThere) list.push_back(card);
    };
    // One day gives neither persona nor rhythm.
    addIf(facts.period != WrappedPeriod::Today, WrappedCard::Persona);
    addIf(facts.period != WrappedPeriod::Today, WrappedCard::Rhythm);
    addIf(facts.hasStartRhythm, WrappedCard::When);
    addIf(facts.superlativeCount >= 2 || facts.goalHitDays >= 1, WrappedCard::Superlatives);
    addIf(facts.milestoneCount > 0, WrappedCard::Milestones);
    addIf(facts.hasNarrative, WrappedCard::Narrative);
    addIf(facts.hasNoteDigest, WrappedCard::Notes);
    list.push_back(WrappedCard::Summary);
    return list;
}

std::vector<WrappedPeriod> segments(WrappedPeriod shown) {
    std::vector<WrappedPeriod> list;
    if (shown == WrappedPeriod::LastWeek) list.push_back(shown);
    list.insert(list.end(), wrappedperiod::pickerCases.begin(), wrappedperiod::pickerCases.end());
    return list;
}

EmptyCard emptyCard(WrappedPeriod period, bool isLogEmpty) {
    if (isLogEmpty)
        return {Words::tr("Ready when you are"),
                Words::tr("Track your first session and this fills in.")};
    if (period == WrappedPeriod::LastWeek)
        return {Words::tr("Nothing tracked last week"),
                Words::tr("Start a session and this week's page fills in.")};
    return {Words::tr("Nothing %1 yet").arg(wrappedperiod::inSentence(period)),
            Words::tr("Start a session and this page fills in.")};
}

} // namespace vantle::wrappedcards
