// The records of worked time, and the rules that make one acceptable.
//
// Plain values and pure functions, any thread.
#pragma once

#include "base/Date.h"

#include <QString>
#include <QUuid>

#include <cstdint>

namespace vantle {

/// The longest time that one record may hold, in seconds: seven days.
inline constexpr std::int64_t kMaxSessionSeconds = 604800;

/// One finished stretch of work. Immutable once logged, except for its note and deletion.
struct Session {
    QUuid id;        ///< the id that its marker had
    QString skillId; ///< may name a skill that no longer exists
    Date startedAt;
    Date endedAt;
    std::int64_t activeSeconds = 0; ///< what counts; pauses and time away are cut out
    QString note;                   ///< empty if none
    QString source;                 ///< kSourceApp or kSourceManual

    friend bool operator==(const Session&, const Session&) = default;
};

/// The image of the open session on the disk, from which a crash is recovered.
struct OpenSessionMarker {
    QUuid id; ///< the id that the session will have
    QString skillId;
    Date startedAt;                 ///< backfill included
    std::int64_t activeSeconds = 0; ///< at the moment of writing
    Date lastSeenAt;                ///< when the session was last known to be alive

    friend bool operator==(const OpenSessionMarker&, const OpenSessionMarker&) = default;
};

[[nodiscard]] const QString& sourceApp();    ///< "mac_app": tracked live, or recovered
[[nodiscard]] const QString& sourceManual(); ///< "manual": logged by hand

/// The longest note that a record may hold, and the longest that is kept of a note typed here, in
/// user-perceived characters.
inline constexpr int kMaxNoteLengthInRecord = 2000;
inline constexpr int kMaxNoteLength = 500;

/// The number of the first rule that the record breaks, 0 when it is acceptable:
/// 1 skill id empty or over 64 characters, 2 seconds outside 0 to seven days, 3 end before start,
/// 4 span over seven days, 5 note over 2000 characters, 6 unknown source.
[[nodiscard]] int firstFailingRule(const Session& session);

[[nodiscard]] inline bool isAcceptable(const Session& session) {
    return firstFailingRule(session) == 0;
}

/// A typed note as it is stored: trimmed, then its first 500 characters.
[[nodiscard]] QString cleanedNote(const QString& note);

} // namespace vantle
