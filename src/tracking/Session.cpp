#include "tracking/Session.h"

#include "base/Text.h"
#include "tracking/Skill.h"

namespace vantle {

const QString& sourceApp() {
    static const QString source = QStringLiteral("mac_app");
    return source;
}

const QString& sourceManual() {
    static const QString source = QStringLiteral("manual");
    return source;
}

int firstFailingRule(const Session& session) {
    if (session.skillId.isEmpty() || !text::hasAtMost(session.skillId, Skill::maxIdLength))
        return 1;
    if (session.activeSeconds < 0 || session.activeSeconds > kMaxSessionSeconds) return 2;
    // Negated so that NaN fails.
    if (!(session.endedAt >= session.startedAt)) return 3;
    if (!(session.endedAt - session.startedAt <= Seconds(kMaxSessionSeconds))) return 4;
    if (!text::hasAtMost(session.note, kMaxNoteLengthInRecord)) return 5;
    if (session.source != sourceApp() && session.source != sourceManual()) return 6;
    return 0;
}

QString cleanedNote(const QString& note) {
    return text::firstCharacters(text::trimmed(note), kMaxNoteLength);
}

} // namespace vantle
