#include "review/narrative/NarrativeText.h"

#include "base/Text.h"

#include <algorithm>
#include <array>

namespace vantle::narrativetext {

namespace {

constexpr qsizetype kMostNotes = 40;
constexpr qsizetype kFewestCharacters = 20;
constexpr qsizetype kMostCharacters = 260;

bool isNewline(QChar unit) {
    constexpr QStringView kNewlines = u"\n\v\f\r\u0085\u2028\u2029";
    return kNewlines.contains(unit);
}

QStringList lines(const QString& text) {
    QStringList found(QString{});
    for (const QChar unit : text) {
        if (isNewline(unit))
            found += QString();
        else
            found.last() += unit;
    }
    return found;
}

/// Whether the line is a heading, a list item or a preamble.
bool isDecoration(const QString& line) {
    constexpr std::array<QStringView, 3> kMarks = {u"-", u"*", u"#"};
    constexpr std::array<QStringView, 5> kPreambles = {u"here are", u"notes:", u"sentence:",
                                                       u"recap:", u"output:"};
    const QString lower = text::lowerCased(line);
    const auto starts = [&](QStringView start) { return lower.startsWith(start); };
    return std::ranges::any_of(kMarks, starts) || std::ranges::any_of(kPreambles, starts);
}

} // namespace

const QString& instructions() {
    static const QString text = QStringLiteral(
        "You compress a person's own work notes into ONE sentence of plain prose.\n\n"
        "The sentence starts with \"You\" and names the two or three most substantial things in "
        "the notes, each shortened to a few words. For example: \"You shipped the licensing "
        "webhook, fixed the notch, and cut the launch video.\"\n\n"
        "Reuse the wording of the notes themselves. Never mention anything that is not in the "
        "notes. Never invent work, numbers, tools, or outcomes. Ignore notes that say nothing "
        "specific. Pick only the biggest items and never list them all.\n\n"
        "One sentence, under 30 words. No hours, no dates, no praise, no motivation, no emoji, no "
        "bullet points, no headings, no em dashes.");
    return text;
}

QString question(const QStringList& notes) {
    QStringList items;
    for (const QString& note : notes.first(std::min(notes.size(), kMostNotes)))
        items += QLatin1String("- ") + note;
    return QLatin1String("Here are the notes they wrote after their work sessions.\n\n") +
           items.join(QLatin1Char('\n')) + QLatin1String("\n\nWrite the one sentence now.");
}

const QString& shorterPlease() {
    static const QString text = QStringLiteral(
        "That was too long and listed too much. Rewrite it naming only the three biggest items, "
        "under 25 words, still starting with \"You\".");
    return text;
}

std::optional<QString> tidy(const QString& answer) {
    QStringList kept;
    for (const QString& line : lines(answer)) {
        const QString bare = text::trimmed(line);
        if (!bare.isEmpty() && !isDecoration(bare)) kept += bare;
    }
    QString sentence = kept.join(QLatin1Char(' '));
    // U+0020 only: no-break spaces are intended.
    while (sentence.contains(QLatin1String("  ")))
        sentence.replace(QLatin1String("  "), QLatin1String(" "));
    sentence = text::trimmed(sentence);
    if (!sentence.startsWith(QLatin1String("You"))) return std::nullopt;
    if (!text::hasAtMost(sentence, kMostCharacters)) return std::nullopt;
    if (text::hasAtMost(sentence, kFewestCharacters - 1)) return std::nullopt;
    return sentence;
}

qsizetype wordCount(const QString& text) {
    const QString pieces = text::withSingleBlanks(text);
    return pieces.isEmpty() ? 0 : pieces.count(QLatin1Char(' ')) + 1;
}

} // namespace vantle::narrativetext
