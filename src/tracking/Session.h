// The records of worked time and the rules for valid ones.
//
// Plain values and pure functions, any thread.
#pragma once

#include "base/Date.h"

#include <QSharedData>
#include <QString>
#include <QUuid>

#include <cstdint>

namespace vantle {

/// The longest record, in seconds: seven days.
inline constexpr std::int64_t kMaxSessionSeconds = 604800;

/// Where a record came from: "mac_app", "manual", or any text of another program. As large as a
/// pointer, since a log holds a million of them and mostly the same.
class SessionSource {
public:
    /// "mac_app".
    SessionSource() = default;
    // NOLINTNEXTLINE(google-explicit-constructor): any text is a source
    SessionSource(const QString& text);

    [[nodiscard]] QString text() const;

    friend bool operator==(const SessionSource& left, const SessionSource& right) {
        return left.m_other == right.m_other ||
               (left.m_other && right.m_other && left.m_other->text == right.m_other->text);
    }

private:
    struct Other : QSharedData {
        explicit Other(const QString& other) : text(other) {}
        const QString text;
    };
    QExplicitlySharedDataPointer<const Other> m_other; ///< null for "mac_app"
};

[[nodiscard]] const SessionSource& sourceApp();    ///< "mac_app": tracked or recovered
[[nodiscard]] const SessionSource& sourceManual(); ///< "manual": added by hand

/// A finished session. Immutable once logged, except for note and deletion.
struct Session {
    QUuid id;        ///< same id as its marker's
    QString skillId; ///< may name a skill that no longer exists
    Date startedAt;
    Date endedAt;
    std::int64_t activeSeconds = 0; ///< counted time, without pauses and absences
    QString note;                   ///< empty if none
    SessionSource source;           ///< sourceApp() or sourceManual() in a valid record

    friend bool operator==(const Session&, const Session&) = default;
};

/// The open session as stored on disk, for recovery after a crash.
struct OpenSessionMarker {
    QUuid id; ///< id of the session to be
    QString skillId;
    Date startedAt;                 ///< backfill included
    std::int64_t activeSeconds = 0; ///< at the moment of writing
    Date lastSeenAt;                ///< last moment at which the session was known to run

    friend bool operator==(const OpenSessionMarker&, const OpenSessionMarker&) = default;
};

/// The longest note in a record, and the longest that the program stores, in user-perceived
/// characters.
inline constexpr int kMaxNoteLengthInRecord = 2000;
inline constexpr int kMaxNoteLength = 500;

/// Returns the number of the first rule that the record breaks; 0 when it is valid. 1: skill id
/// empty or over 64 characters; 2: seconds outside 0 to seven days; 3: end before start; 4: span
/// over seven days; 5: note over 2000 characters; 6: unknown source.
[[nodiscard]] int firstFailingRule(const Session& session);

[[nodiscard]] inline bool isAcceptable(const Session& session) {
    return firstFailingRule(session) == 0;
}

/// Returns a note as it is stored: trimmed and cut to 500 characters.
[[nodiscard]] QString cleanedNote(const QString& note);

} // namespace vantle
