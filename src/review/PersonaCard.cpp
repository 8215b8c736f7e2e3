#include "review/PersonaCard.h"

namespace vantle::reviewcards {

namespace {

constexpr qsizetype kMostColors = 5;

QList<QColor> celebration(const BuilderPersona& persona, const WrappedStats& stats) {
    QList<QColor> colors = {QColor::fromRgb(persona.startHex), QColor::fromRgb(persona.endHex)};
    for (const auto& [skill, hours] : stats.skillHours)
        if (colors.size() < kMostColors) colors << QColor::fromRgb(skill.hexRGB);
    return colors;
}

void addPersona(PersonaCard& card, const BuilderPersona& persona, const WrappedStats& stats) {
    card.lead = QStringLiteral("Your builder personality is");
    card.name = persona.name;
    card.line = persona.line;
    card.facts = {persona.whenFact, persona.paceFact,
                  cardwords::sessions(stats.personaSessionCount)};
    card.quiet = QStringLiteral("From ") + stats.personaScope;
    card.startColor = QColor::fromRgb(persona.startHex);
    card.endColor = QColor::fromRgb(persona.endHex);
    card.symbol = builderpersona::symbol(persona.name);
    card.artwork = builderpersona::artworkName(persona.name);
    card.celebrationColors = celebration(persona, stats);
}

void addUnfinished(PersonaCard& card, const WrappedStats& stats) {
    card.lead = QStringLiteral("Taking shape");
    card.facts = {QStringLiteral("%1 / %2 sessions")
                      .arg(stats.personaSessionCount)
                      .arg(personaSessionsNeeded),
                  QStringLiteral("%1 / %2 days").arg(stats.activeDays).arg(personaDaysNeeded)};
    card.line =
        QStringLiteral("Complete 5 sessions across 2 days to reveal a pattern you can trust.");
    card.quiet = QStringLiteral("Your type is based only on your local activity.");
}

} // namespace

PersonaCard persona(const WrappedStats& stats) {
    PersonaCard card;
    card.kicker = QStringLiteral("YOUR BUILDER TYPE");
    card.dotCount = cardwords::dotCount(stats);
    card.sessionCount = stats.personaSessionCount;
    card.activeDays = stats.activeDays;
    if (stats.persona)
        addPersona(card, *stats.persona, stats);
    else
        addUnfinished(card, stats);
    return card;
}

} // namespace vantle::reviewcards
