// What the notes of a period say, without a language model: how many there are, which words keep
// returning, a few of the latest, and a sentence that sums that up.
//
// Plain values and pure functions, any thread.
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
    /// A note worth showing.
    struct Highlight {
        QUuid sessionId;
        QString text; ///< as in `allNotes`
        Skill skill;  ///< as it is shown, also when it was deleted since
        Date endedAt;
        friend bool operator==(const Highlight&, const Highlight&) = default;
    };

    int noteCount = 0;                 ///< sessions whose note has text
    QStringList themes;                ///< recurring words, at most three
    std::vector<Highlight> highlights; ///< the latest distinct notes, at most four
    QStringList allNotes;              ///< every note with single blanks, newest first, as often
                                       ///< as it was written
    friend bool operator==(const WrappedNoteDigest&, const WrappedNoteDigest&) = default;

    /// The digest of these sessions, in whatever order they come. None when no note has text.
    [[nodiscard]] static std::optional<WrappedNoteDigest> compute(SessionRefs sessions,
                                                                  const std::vector<Skill>& skills);

    /// "Your notes kept returning to API and launch.", or how many there were.
    [[nodiscard]] QString storyLine() const;
};

} // namespace vantle
