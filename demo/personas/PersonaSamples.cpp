#include "personas/PersonaSamples.h"

namespace vantle {

namespace {

PersonaCard known(const char* name, qint64 hours) {
    PersonaCard card;
    card.name = QLatin1String(name);
    const auto colors = builderpersona::gradient(card.name);
    card.startColor = QColor::fromRgb(colors.start);
    card.endColor = QColor::fromRgb(colors.end);
    card.symbol = builderpersona::symbol(card.name);
    card.dotCount = hours;
    return card;
}

PersonaCard unfinished(int sessions, int days) {
    PersonaCard card;
    card.lead = QStringLiteral("%1 / 5, %2 / 2").arg(sessions).arg(days);
    card.sessionCount = sessions;
    card.activeDays = days;
    return card;
}

} // namespace

QVariantList PersonaSamples::cards() {
    const std::vector<PersonaCard> cards = {
        known("Early Bird", 13),    known("Night Owl", 22),   known("Night Shift", 9),
        known("Deep Diver", 37),    known("Busy Bee", 25),    known("Quick Hitter", 17),
        known("Multi Builder", 30), known("Long Hauler", 43), known("Steady Hand", 20),
        known("After Hours", 12),   known("All Rounder", 28), known("Unknown name", 0),
        unfinished(0, 0),           unfinished(3, 1),         unfinished(4, 2),
        known("Night Owl", 110)};
    return cardwords::asList(cards);
}

} // namespace vantle
