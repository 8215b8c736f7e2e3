// What the notes of some sessions say.
#include "vectors/NeutralRecords.h"
#include "vectors/NoteDigestJson.h"
#include "vectors/forms.h"

namespace vantle::vectors {

namespace {

QJsonValue toJson(const WrappedNoteDigest::Highlight& highlight) {
    return QJsonObject{{QStringLiteral("sessionId"), vectors::toJson(highlight.sessionId)},
                       {QStringLiteral("text"), highlight.text},
                       {QStringLiteral("skillId"), highlight.skill.id},
                       {QStringLiteral("skillName"), highlight.skill.name},
                       {QStringLiteral("hexRGB"), static_cast<qint64>(highlight.skill.hexRGB)},
                       {QStringLiteral("endedAt"), instantText(highlight.endedAt)}};
}

QJsonValue answer(const Case& item) {
    if (item.kind != QLatin1String("digest")) return unknown(item.kind);
    const auto sessions = sessionsFromJson(item.input[QLatin1String("sessions")]);
    const auto skills = skillsFromJson(item.input[QLatin1String("skills")]);
    return vectors::toJson(WrappedNoteDigest::compute(refsTo(sessions), skills));
}

} // namespace

QJsonValue toJson(const std::optional<WrappedNoteDigest>& digest) {
    if (!digest) return QJsonValue::Null;
    QJsonArray highlights;
    for (const auto& highlight : digest->highlights)
        highlights << toJson(highlight);
    return QJsonObject{{QStringLiteral("noteCount"), digest->noteCount},
                       {QStringLiteral("themes"), QJsonArray::fromStringList(digest->themes)},
                       {QStringLiteral("highlights"), highlights},
                       {QStringLiteral("allNotes"), QJsonArray::fromStringList(digest->allNotes)},
                       {QStringLiteral("storyLine"), digest->storyLine()}};
}

Form noteDigestForm() {
    Form form;
    form.name = QStringLiteral("note_digest");
    form.answer = answer;
    return form;
}

} // namespace vantle::vectors
