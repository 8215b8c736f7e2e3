// The records of worked time and the rules for valid ones.
//
// Plain values and pure functions, any thread.
#pragma once

#include "base/Date.h"

#include <QString>
#include <QUuid>

#include <cstdint>

namespace vantle {

/// The longest record, in seconds: seven days.
inline constexpr std::int64_t kMaxSessionSeconds = 604800;

/// A finished session. Immutable once logged, except for note and deletion.
struct Session {
    QUuid id;        ///< same id as its marker's
    QString skillId; ///< may name a skill that no longer exists
    Date startedAt;
    Date endedAt;
    std::int64_t activeSeconds = 0; ///< counted time, without pauses and absences
    QString note;                   ///< empty if none
    QString source;                 ///< kSourceApp or kSourceManual

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

[[nodiscard]] const QString& sourceApp();    ///< "mac_app": tracked or recovered
[[nodiscard]] const QString& sourceManual(); ///< "manual": added by hand

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
