#include "tracking/Session.h"

#include "base/Text.h"
#include "tracking/Skill.h"

namespace vantle {

namespace {

const QString& textOfApp() {
    static const QString text = QStringLiteral("mac_app");
    return text;
}

} // namespace

SessionSource::SessionSource(const QString& text)
    : m_other(text == textOfApp() ? nullptr : new Other(text)) {}

QString SessionSource::text() const { return m_other ? m_other->text : textOfApp(); }

const SessionSource& sourceApp() {
    static const SessionSource source;
    return source;
}

const SessionSource& sourceManual() {
    static const SessionSource source(QStringLiteral("manual"));
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
