// The eleven names and their texts.
#include "base/Text.h"
#include "base/Words.h"
#include "review/stats/BuilderPersona.h"

#include <algorithm>

namespace vantle::builderpersona {

namespace {

struct Entry {
    QString name;
    Gradient gradient;
    QString symbol;
    const char* line; ///< source text; for "Quick Hitter" see quickHitterLine()
};

const QString& quickHitter() {
    static const QString text = QStringLiteral("Quick Hitter");
    return text;
}

const QString& allRounder() {
    static const QString text = QStringLiteral("All Rounder");
    return text;
}

const std::array<Entry, 11>& table() {
    static const std::array<Entry, 11> entries = {{
        {QStringLiteral("Early Bird"),
         {0xFFD60A, 0xFF9F0A},
         QStringLiteral("sunrise.fill"),
         QT_TRANSLATE_NOOP(
             "Words",
             "Your clearest pattern is showing up and moving the work forward before noon.")},
        {QStringLiteral("Night Owl"),
         {0x7A78FF, 0xBF5AF2},
         QStringLiteral("moon.stars.fill"),
         QT_TRANSLATE_NOOP("Words",
                           "Your deepest stretches of focused work tend to happen late at night.")},
        {QStringLiteral("Night Shift"),
         {0x64D2FF, 0x7A78FF},
         QStringLiteral("moon.fill"),
         QT_TRANSLATE_NOOP("Words", "You build momentum in compact late-night sessions.")},
        {QStringLiteral("Deep Diver"),
         {0x40C8E0, 0x7A78FF},
         QStringLiteral("water.waves"),
         QT_TRANSLATE_NOOP(
             "Words",
             "You make progress by staying with one part of the work for long stretches.")},
        {QStringLiteral("Busy Bee"),
         {0xFFD60A, 0xACF35C},
         QStringLiteral("sparkles"),
         QT_TRANSLATE_NOOP("Words",
                           "You keep several parts of the work moving through quick bursts.")},
        {quickHitter(), {0xFF375F, 0xFF9F0A}, QStringLiteral("bolt.fill"), ""},
        {QStringLiteral("Multi Builder"),
         {0xFF375F, 0x7A78FF},
         QStringLiteral("square.grid.2x2.fill"),
         QT_TRANSLATE_NOOP(
             "Words", "You keep several parts of the work moving without losing your rhythm.")},
        {QStringLiteral("Long Hauler"),
         {0xFF9F0A, 0xFF6482},
         QStringLiteral("infinity"),
         QT_TRANSLATE_NOOP("Words",
                           "You move meaningful work forward through long, committed sessions.")},
        {QStringLiteral("Steady Hand"),
         {0x30D158, 0x40C8E0},
         QStringLiteral("scope"),
         QT_TRANSLATE_NOOP("Words",
                           "You make progress through a calm, repeatable daytime rhythm.")},
        {QStringLiteral("After Hours"),
         {0xFF6482, 0xBF5AF2},
         QStringLiteral("sunset.fill"),
         QT_TRANSLATE_NOOP("Words",
                           "Your momentum tends to arrive after the rest of the day is done.")},
        {allRounder(),
         {0xACF35C, 0x30D158},
         QStringLiteral("circle.hexagongrid.fill"),
         QT_TRANSLATE_NOOP(
             "Words", "You make progress through a flexible rhythm that works across the day.")},
    }};
    return entries;
}

// The names as source texts for translation; the table uses them as identities.
[[maybe_unused]] constexpr const char* kShownNames[] = {
    QT_TRANSLATE_NOOP("Words", "Early Bird"),    QT_TRANSLATE_NOOP("Words", "Night Owl"),
    QT_TRANSLATE_NOOP("Words", "Night Shift"),   QT_TRANSLATE_NOOP("Words", "Deep Diver"),
    QT_TRANSLATE_NOOP("Words", "Busy Bee"),      QT_TRANSLATE_NOOP("Words", "Quick Hitter"),
    QT_TRANSLATE_NOOP("Words", "Multi Builder"), QT_TRANSLATE_NOOP("Words", "Long Hauler"),
    QT_TRANSLATE_NOOP("Words", "Steady Hand"),   QT_TRANSLATE_NOOP("Words", "After Hours"),
    QT_TRANSLATE_NOOP("Words", "All Rounder")};

const Entry* entryOf(const QString& name) {
    const auto found = std::ranges::find(table(), name, &Entry::name);
    return found != table().end() ? &*found : nullptr;
}

/// Complete, although no table of names leads to its first and fourth row.
QString quickHitterLine(DayPart when) {
    switch (when) {
    case DayPart::Morning:
        return Words::tr("You tend to move work forward in short morning bursts.");
    case DayPart::Daylight:
        return Words::tr("You tend to move work forward in quick daytime bursts.");
    case DayPart::Evening:
        return Words::tr("You tend to move work forward in short evening bursts.");
    case DayPart::Night:
        return Words::tr("You tend to move work forward in quick late-night bursts.");
    case DayPart::Anytime:
        return Words::tr("You make progress in quick bursts throughout the day.");
    }
    Q_UNREACHABLE();
}

} // namespace

QString name(DayPart when, Style style, Focus focus) {
    // The first match counts: early and late hours say more than the other two axes.
    if (when == DayPart::Morning) return QStringLiteral("Early Bird");
    if (when == DayPart::Night && style == Style::Marathon) return QStringLiteral("Night Owl");
    if (when == DayPart::Night) return QStringLiteral("Night Shift");
    if (style == Style::Marathon && focus == Focus::Focused) return QStringLiteral("Deep Diver");
    if (style == Style::Sprint && focus == Focus::Multi) return QStringLiteral("Busy Bee");
    if (style == Style::Sprint) return quickHitter();
    if (focus == Focus::Multi) return QStringLiteral("Multi Builder");
    if (style == Style::Marathon) return QStringLiteral("Long Hauler");
    if (when == DayPart::Daylight) return QStringLiteral("Steady Hand");
    if (when == DayPart::Evening) return QStringLiteral("After Hours");
    return allRounder();
}

QString line(const QString& name, DayPart when) {
    if (name == quickHitter()) return quickHitterLine(when);
    const Entry* entry = entryOf(name);
    return entry ? Words::tr(entry->line) : QString();
}

QString whenFact(DayPart when) {
    switch (when) {
    case DayPart::Morning:
        return Words::tr("Before noon");
    case DayPart::Daylight:
        return Words::tr("Noon to 6 PM");
    case DayPart::Evening:
        return Words::tr("After 6 PM");
    case DayPart::Night:
        return Words::tr("Late night");
    case DayPart::Anytime:
        return Words::tr("Across the day");
    }
    Q_UNREACHABLE();
}

QString shownName(const QString& name) { return Words::tr(name.toUtf8()); }

Gradient gradient(const QString& name) {
    const Entry* entry = entryOf(name);
    return (entry ? entry : entryOf(allRounder()))->gradient;
}

QString symbol(const QString& name) {
    const Entry* entry = entryOf(name);
    return entry ? entry->symbol : QStringLiteral("hammer.fill");
}

QString artworkName(const QString& name) {
    return QLatin1String("persona-") +
           text::lowerCased(name).replace(QLatin1Char(' '), QLatin1Char('-'));
}

} // namespace vantle::builderpersona
