#include "vectors/NeutralRecords.h"

#include "base/Iso8601.h"

namespace vantle::vectors {

namespace {

QString text(const QJsonObject& object, QLatin1String key) { return object[key].toString(); }

QUuid id(const QJsonObject& object) { return QUuid::fromString(text(object, QLatin1String("id"))); }

} // namespace

Date dateFromJson(const QJsonValue& value) {
    if (!value.isString()) return dateFromEpoch(value.toDouble());
    return iso8601::parse(value.toString().toStdString()).value_or(Date());
}

QJsonValue instantText(Date date) {
    const auto text = iso8601::format(date);
    if (!text) return QJsonValue::Null;
    return QString::fromLatin1(text->data(), qsizetype(text->size()));
}

Session sessionFromJson(const QJsonValue& value) {
    const QJsonObject object = value.toObject();
    return {id(object),
            text(object, QLatin1String("skillId")),
            dateFromJson(object[QLatin1String("startedAt")]),
            dateFromJson(object[QLatin1String("endedAt")]),
            object[QLatin1String("activeSeconds")].toInteger(),
            text(object, QLatin1String("note")),
            text(object, QLatin1String("source"))};
}

OpenSessionMarker markerFromJson(const QJsonValue& value) {
    const QJsonObject object = value.toObject();
    return {id(object), text(object, QLatin1String("skillId")),
            dateFromJson(object[QLatin1String("startedAt")]),
            object[QLatin1String("activeSeconds")].toInteger(),
            dateFromJson(object[QLatin1String("lastSeenAt")])};
}

Skill skillFromJson(const QJsonValue& value) {
    const QJsonObject object = value.toObject();
    return {text(object, QLatin1String("id")), text(object, QLatin1String("name")),
            static_cast<std::uint32_t>(object[QLatin1String("hexRGB")].toInteger()),
            object[QLatin1String("builtin")].toBool()};
}

std::vector<Session> sessionsFromJson(const QJsonValue& list) {
    std::vector<Session> sessions;
    for (const QJsonValue& item : list.toArray())
        sessions.push_back(sessionFromJson(item));
    return sessions;
}

std::vector<Skill> skillsFromJson(const QJsonValue& list) {
    std::vector<Skill> skills;
    for (const QJsonValue& item : list.toArray())
        skills.push_back(skillFromJson(item));
    return skills;
}

Calendar calendarFromJson(const QJsonValue& value) {
    const QJsonObject object = value.toObject();
    return {text(object, QLatin1String("timeZone")), object[QLatin1String("firstWeekday")].toInt(),
            object[QLatin1String("minimalDays")].toInt(), text(object, QLatin1String("locale"))};
}

QJsonValue toJson(const QUuid& id) { return id.toString(QUuid::WithoutBraces).toUpper(); }

QJsonValue toJson(const QString& text) { return text; }

QJsonValue toJson(Date date) { return epochSeconds(date); }

QJsonValue toJson(std::int64_t number) { return qint64{number}; }

QJsonValue toJson(const Session& session) {
    return QJsonObject{{QStringLiteral("id"), toJson(session.id)},
                       {QStringLiteral("skillId"), session.skillId},
                       {QStringLiteral("startedAt"), toJson(session.startedAt)},
                       {QStringLiteral("endedAt"), toJson(session.endedAt)},
                       {QStringLiteral("activeSeconds"), toJson(session.activeSeconds)},
                       {QStringLiteral("note"), session.note},
                       {QStringLiteral("source"), session.source.text()}};
}

QJsonValue toJson(const OpenSessionMarker& marker) {
    return QJsonObject{{QStringLiteral("id"), toJson(marker.id)},
                       {QStringLiteral("skillId"), marker.skillId},
                       {QStringLiteral("startedAt"), toJson(marker.startedAt)},
                       {QStringLiteral("activeSeconds"), toJson(marker.activeSeconds)},
                       {QStringLiteral("lastSeenAt"), toJson(marker.lastSeenAt)}};
}

QJsonValue toJson(const Skill& skill) {
    return QJsonObject{{QStringLiteral("id"), skill.id},
                       {QStringLiteral("name"), skill.name},
                       {QStringLiteral("hexRGB"), static_cast<qint64>(skill.hexRGB)},
                       {QStringLiteral("builtin"), skill.builtin}};
}

} // namespace vantle::vectors
