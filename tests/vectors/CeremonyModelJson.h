// The choreography of a show as it stands in cases: an object with the model's fields by name.
#pragma once

#include "ceremony/show/CeremonyGridModel.h"

#include <QJsonArray>
#include <QJsonObject>

namespace vantle::vectors {

/// The variant of that name; an unknown name is the first one.
[[nodiscard]] CeremonyVariant variantFromJson(const QJsonValue& name);

[[nodiscard]] QJsonObject toJson(const CeremonyGridModel& model);

/// With any picture as its title where the object says `hasTitle`.
[[nodiscard]] CeremonyGridModel modelFromJson(const QJsonObject& object);

template <typename Numbers>
[[nodiscard]] QJsonArray numbers(const Numbers& values) {
    QJsonArray list;
    for (const auto value : values)
        list << static_cast<double>(value);
    return list;
}

} // namespace vantle::vectors
