#include "review/PersonaCard.h"

#include "base/Words.h"

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
    card.lead = Words::tr("Your builder personality is");
    card.name = builderpersona::shownName(persona.name);
    card.line = persona.line;
    card.facts = {persona.whenFact, persona.paceFact,
                  cardwords::sessions(stats.personaSessionCount)};
    card.quiet = Words::tr("From %1").arg(stats.personaScope);
    card.startColor = QColor::fromRgb(persona.startHex);
    card.endColor = QColor::fromRgb(persona.endHex);
    card.symbol = builderpersona::symbol(persona.name);
    card.artwork = builderpersona::artworkName(persona.name);
    card.celebrationColors = celebration(persona, stats);
}

void addUnfinished(PersonaCard& card, const WrappedStats& stats) {
    card.lead = Words::tr("Taking shape");
    card.facts = {Words::tr("%1 / %2 sessions")
                      .arg(QString::number(stats.personaSessionCount),
                           QString::number(personaSessionsNeeded)),
                  Words::tr("%1 / %2 days")
                      .arg(QString::number(stats.activeDays), QString::number(personaDaysNeeded))};
    card.line = Words::tr("Complete 5 sessions across 2 days to reveal a pattern you can trust.");
    card.quiet = Words::tr("Your type is based only on your local activity.");
}

} // namespace

PersonaCard persona(const WrappedStats& stats) {
    PersonaCard card;
    card.kicker = Words::tr("YOUR BUILDER TYPE");
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
