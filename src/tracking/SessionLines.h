// The reader of records from the bytes of a log.
//
// Pure functions, any thread.
#pragma once

#include "base/Iso8601.h"
#include "tracking/Session.h"

#include <QByteArray>

#include <cstring>
#include <optional>
#include <vector>

namespace vantle::sessionlines {

/// Returns the length of the newline at the front of `rest`; 0 when there is none. All Unicode
/// newlines count: U+000A to U+000D, U+0085, U+2028, U+2029.
[[nodiscard]] inline qsizetype newlineLength(QByteArrayView rest) {
    const auto at = [&](qsizetype i) { return static_cast<unsigned char>(rest[i]); };
    if (at(0) >= 0x0A && at(0) <= 0x0D) return 1;
    if (at(0) == 0xC2 && rest.size() > 1 && at(1) == 0x85) return 2;
    if (at(0) == 0xE2 && rest.size() > 2 && at(1) == 0x80 && (at(2) == 0xA8 || at(2) == 0xA9))
        return 3;
    return 0;
}

/// Calls `visit(QByteArrayView)` for each non-empty line of `text`.
template <typename Visit>
void forEachLine(QByteArrayView text, Visit visit) {
    qsizetype begin = 0;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype newline = newlineLength(text.sliced(at));
        if (newline == 0) {
            ++at;
            continue;
        }
        if (at > begin) visit(text.sliced(begin, at - begin));
        at += newline;
        begin = at;
    }
    if (text.size() > begin) visit(text.sliced(begin));
}

/// Reads records line by line, fast where a line is in canonical form (as the program writes it).
/// Shares repeated texts among the records. One reader per thread.
class Reader {
public:
    /// Returns the line's record, fully validated except for the rules of firstFailingRule(). Same
    /// result as json::decodeSession for all UTF-8. Requires a line without newline.
    [[nodiscard]] std::optional<Session> decode(QByteArrayView line);

    /// Calls `visit(QByteArrayView line, std::optional<Session>)` for each non-empty line of
    /// `text`, a run of whole lines.
    template <typename Visit>
    void read(QByteArrayView text, Visit visit);

    /// The fast path of both. Returns the canonical record at the front of `text`, ended by a line
    /// feed or the end, and sets `length` to that of its line. Empty says nothing about the line:
    /// a mistake in the other direction costs speed only, so tests ask here.
    [[nodiscard]] std::optional<Session> decodeCanonical(QByteArrayView text, qsizetype& length);

private:
    /// A skill id as bytes of a line, and as the text that records share.
    struct KnownSkill {
        QByteArray utf8; ///< with the closing quote
        QString id;
    };
    static constexpr std::size_t kKnownSkills = 16;

    class Cursor;
    [[nodiscard]] bool readSkillId(Cursor& cursor, QString& id);

    std::vector<KnownSkill> m_skills; ///< most recent first
    std::size_t m_replacedNext = 0;
    iso8601::Parser m_dates;
};

template <typename Visit>
void Reader::read(QByteArrayView text, Visit visit) {
    while (!text.isEmpty()) {
        qsizetype length = 0;
        if (auto session = decodeCanonical(text, length)) {
            visit(text.first(length), std::move(session));
        } else {
            const void* feed =
                std::memchr(text.data(), '\n', static_cast<std::size_t>(text.size()));
            length = feed ? static_cast<const char*>(feed) - text.data() : text.size();
            forEachLine(text.first(length),
                        [&](QByteArrayView line) { visit(line, decode(line)); });
        }
        text = text.sliced(std::min(length + 1, text.size()));
    }
}

/// Decodes a single line like Reader::decode.
[[nodiscard]] inline std::optional<Session> decode(QByteArrayView line) {
    return Reader().decode(line);
}

} // namespace vantle::sessionlines
