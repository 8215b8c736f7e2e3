// The JSON form of records in cases: plain members, dates mostly as seconds since 1970.
#pragma once

#include "base/Calendar.h"
#include "tracking/Session.h"
#include "tracking/Skill.h"

#include <QJsonArray>
#include <QJsonObject>

#include <optional>
#include <vector>

namespace vantle::vectors {

[[nodiscard]] Session sessionFromJson(const QJsonValue& value);
[[nodiscard]] OpenSessionMarker markerFromJson(const QJsonValue& value);
[[nodiscard]] Skill skillFromJson(const QJsonValue& value);
[[nodiscard]] std::vector<Session> sessionsFromJson(const QJsonValue& list);
[[nodiscard]] std::vector<Skill> skillsFromJson(const QJsonValue& list);

[[nodiscard]] QJsonValue toJson(const Session& session);
[[nodiscard]] QJsonValue toJson(const OpenSessionMarker& marker);
[[nodiscard]] QJsonValue toJson(const Skill& skill);
[[nodiscard]] QJsonValue toJson(const QUuid& id);
[[nodiscard]] QJsonValue toJson(const QString& text);
[[nodiscard]] QJsonValue toJson(Date date);
[[nodiscard]] QJsonValue toJson(std::int64_t number);

template <typename Value>
[[nodiscard]] QJsonValue toJson(const std::vector<Value>& values) {
    QJsonArray list;
    for (const Value& value : values)
        list << toJson(value);
    return list;
}

/// Converts an empty value to null.
template <typename Value>
[[nodiscard]] QJsonValue toJson(const std::optional<Value>& value) {
    return value ? toJson(*value) : QJsonValue(QJsonValue::Null);
}

[[nodiscard]] Calendar calendarFromJson(const QJsonValue& value);

/// From seconds since 1970, or from the text of the files, as the form has it.
[[nodiscard]] Date dateFromJson(const QJsonValue& value);

/// In the form of the files: "2026-03-01T10:00:00Z".
[[nodiscard]] QJsonValue instantText(Date date);

} // namespace vantle::vectors
