// The digest of a period's notes, made without a language model.
//
// Number of notes, recurring words, a few of the latest notes, and a summary sentence. Plain values
// and pure functions, any thread.
#pragma once

#include "base/Date.h"
#include "review/stats/SessionRefs.h"
#include "tracking/Skill.h"

#include <QString>
#include <QStringList>
#include <QUuid>

#include <optional>
#include <vector>

namespace vantle {

struct WrappedNoteDigest {
    /// A note to show.
    struct Highlight {
        QUuid sessionId;
        QString text; ///< as in `allNotes`
        Skill skill;  ///< as shown; exists for a deleted skill too
        Date endedAt;
        friend bool operator==(const Highlight&, const Highlight&) = default;
    };

    int noteCount = 0;                 ///< sessions whose note has text
    QStringList themes;                ///< recurring words, at most three
    std::vector<Highlight> highlights; ///< the latest distinct notes, at most four
    QStringList allNotes;              ///< every note with single blanks, newest first, as often
                                       ///< as it was written
    friend bool operator==(const WrappedNoteDigest&, const WrappedNoteDigest&) = default;

    /// Returns the digest of the sessions, in any order; empty when no note has text.
    [[nodiscard]] static std::optional<WrappedNoteDigest> compute(SessionRefs sessions,
                                                                  const std::vector<Skill>& skills);

    /// Returns "Your notes kept returning to API and launch.", or the number of notes.
    [[nodiscard]] QString storyLine() const;
};

} // namespace vantle
