#include "review/NotesCards.h"

#include "base/Bidi.h"
#include "base/DateText.h"
#include "base/Text.h"
#include "base/Words.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace vantle {

QString NoteHighlight::spoken() const {
    return QStringList{text, skillName, date}.join(QStringLiteral(", "));
}

} // namespace vantle

namespace vantle::reviewcards {

namespace {

QString moreNotes(qsizetype left) {
    if (left <= 0) return {};
    return left == 1 ? Words::tr("1 more note is in your log")
                     : Words::tr("%n more notes are in your log", nullptr, static_cast<int>(left));
}

/// Returns the length of the first sentence with the space after it.
qsizetype firstSentence(const QString& text) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Sentence, text);
    return std::max<qsizetype>(finder.toNextBoundary(), 0);
}

} // namespace

NarrativeCard narrative(WrappedPeriod period, const QString& text) {
    const auto opening = firstSentence(text);
    return {Words::tr("%1, IN WORDS").arg(text::upperCased(wrappedperiod::label(period))), text,
            text.left(opening), text.mid(opening),
            Words::tr("Written on your Mac. Nothing was sent anywhere.")};
}

std::optional<NotesCard> notes(const WrappedStats& stats, const WrappedSettings& settings,
                               std::size_t shown) {
    if (!stats.noteDigest) return std::nullopt;
    const WrappedNoteDigest& digest = *stats.noteDigest;
    NotesCard card;
    card.kicker = Words::tr("WHAT MOVED FORWARD");
    card.story = digest.storyLine();
    card.themes = digest.themes;
    const DateText date = DateText::fixed(Words::tr("MMM d", "date pattern"), settings.calendar);
    for (const auto& note : cardwords::firstOf(digest.highlights, shown))
        card.highlights.push_back({note.text, note.skill.name, QColor::fromRgb(note.skill.hexRGB),
                                   bidi::isolated(date(note.endedAt))});
    card.more = moreNotes(digest.noteCount - static_cast<qsizetype>(card.highlights.size()));
    card.foot = Words::tr("Made only from notes saved on this Mac");
    return card;
}

SummaryCard summary(const WrappedStats& stats, const WrappedSettings& settings) {
    return {wrappedperiod::summaryTitle(stats.period), stats.closingLine(settings.durationStyle),
            Words::tr("Made on this Mac, ready to share"), posterFileName(stats.period)};
}

QString posterFileName(WrappedPeriod period) {
    return QStringLiteral("wrapped-%1.png").arg(wrappedperiod::fileSuffix(period));
}

} // namespace vantle::reviewcards
