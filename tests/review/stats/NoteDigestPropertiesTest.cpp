// What holds for the notes of any sessions.
#include "base/Text.h"
#include "review/stats/NoteDigest.h"
#include "support/QtPrinters.h"
#include "tracking/Generators.h"
#include "tracking/Samples.h"

#include <QSet>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

namespace vantle {
namespace {

/// Sessions with notes of few words, so that words return, among notes of any characters. Some end
/// at the same moment.
rc::Gen<std::vector<Session>> noted() {
    const auto word = rc::gen::map(
        rc::gen::element<std::string>("api", "API", "Login", "login", "the", "v2", "2026", "don't",
                                      "caf\u00E9", "CAF\u00C9", "\U0001F680", "\u6771\u4EAC\u99C5",
                                      "\n", "  ", "cafe\u0301", "page,"),
        [](const std::string& text) { return QString::fromStdString(text); });
    const auto words = rc::gen::map(
        rc::gen::resize(8, rc::gen::container<std::vector<QString>>(word)),
        [](const auto& ws) { return QStringList(ws.begin(), ws.end()).join(QLatin1Char(' ')); });
    const auto note = rc::gen::weightedOneOf<QString>({{4, words}, {1, generators::text(12)}});
    const auto session =
        rc::gen::map(rc::gen::pair(note, rc::gen::inRange(0, 8)), [](const auto& parts) {
            Session made = samples::session();
            made.note = parts.first;
            made.endedAt = samples::morning() + Seconds(3600.0 * parts.second);
            return made;
        });
    return rc::gen::map(rc::gen::resize(30, rc::gen::container<std::vector<Session>>(session)),
                        [](std::vector<Session> sessions) {
                            int number = 0;
                            for (Session& made : sessions)
                                made.id =
                                    samples::id(number += 7919); // no two of a log are the same
                            return sessions;
                        });
}

std::optional<WrappedNoteDigest> digestOfLog(const std::vector<Session>& sessions) {
    return WrappedNoteDigest::compute(refsTo(sessions), samples::seeds());
}

/// The keys of the words of a note, by the plainest means.
QSet<QString> keysIn(const QString& note) {
    QSet<QString> keys;
    QStringView rest = note;
    for (QStringView word = text::takeWord(rest); !word.isEmpty(); word = text::takeWord(rest))
        keys += text::lowerCased(word.toString());
    return keys;
}

RC_GTEST_PROP(NoteDigest, OrderOfTheSessionsChangesNothing, ()) {
    std::vector<Session> sessions = *noted();
    const auto digest = digestOfLog(sessions);
    const auto turn = *rc::gen::inRange<std::size_t>(0, sessions.size() + 1);
    std::rotate(sessions.begin(), sessions.begin() + static_cast<std::ptrdiff_t>(turn),
                sessions.end());
    RC_ASSERT(digestOfLog(sessions) == digest);
    std::ranges::reverse(sessions);
    RC_ASSERT(digestOfLog(sessions) == digest);
}

RC_GTEST_PROP(NoteDigest, EveryNoteWithTextIsKeptAndNoOther, ()) {
    const std::vector<Session> sessions = *noted();
    QStringList expected;
    for (const Session& session : sessions) {
        const QString text = text::withSingleBlanks(session.note);
        if (!text.isEmpty()) expected += text;
    }
    const auto digest = digestOfLog(sessions);
    RC_ASSERT(digest.has_value() == !expected.isEmpty());
    if (!digest) return;
    RC_ASSERT(digest->noteCount == expected.size());
    QStringList kept = digest->allNotes;
    std::ranges::sort(kept);
    std::ranges::sort(expected);
    RC_ASSERT(kept == expected);
}

RC_GTEST_PROP(NoteDigest, ThemesStandInTwoNotesAndNoWordThatIsMoreFrequentIsLeftOut, ()) {
    const auto digest = digestOfLog(*noted());
    if (!digest) return;
    QHash<QString, int> counts;
    for (const QString& note : digest->allNotes)
        for (const QString& key : keysIn(note))
            ++counts[key];
    int least = 1 << 30;
    QSet<QString> shown;
    for (const QString& theme : digest->themes) {
        const QString key = text::lowerCased(theme);
        RC_ASSERT(counts.value(key) > 1);
        RC_ASSERT(counts.value(key) <= least);
        RC_ASSERT(text::characterCount(key) >= 3);
        least = counts.value(key);
        shown += key;
    }
    RC_ASSERT(shown.size() == digest->themes.size());
    RC_ASSERT(digest->themes.size() <= 3);
    const QString login = QStringLiteral("login");
    if (counts.value(login) > (digest->themes.size() < 3 ? 1 : least))
        RC_ASSERT(shown.contains(login));
}

RC_GTEST_PROP(NoteDigest, HighlightsAreTheFirstDistinctNotes, ()) {
    const auto digest = digestOfLog(*noted());
    if (!digest) return;
    QStringList expected;
    QSet<QString> seen;
    for (const QString& note : digest->allNotes) {
        const QString key = text::lowerCased(note);
        if (seen.contains(key)) continue;
        seen += key;
        expected += note;
    }
    expected = expected.first(std::min<qsizetype>(expected.size(), 4));
    RC_ASSERT(digest->highlights.size() == static_cast<std::size_t>(expected.size()));
    for (qsizetype i = 0; i < expected.size(); ++i)
        RC_ASSERT(digest->highlights[static_cast<std::size_t>(i)].text == expected[i]);
    RC_ASSERT(std::ranges::is_sorted(digest->highlights, std::ranges::greater(),
                                     &WrappedNoteDigest::Highlight::endedAt));
}

} // namespace
} // namespace vantle
