// The JSON form of a show's choreography in cases.
#pragma once

#include "ceremony/show/CeremonyGridModel.h"

#include <QJsonArray>
#include <QJsonObject>

namespace vantle::vectors {

/// Returns the variant of that name; the first one for an unknown name.
[[nodiscard]] CeremonyVariant variantFromJson(const QJsonValue& name);

[[nodiscard]] QJsonObject toJson(const CeremonyGridModel& model);

/// With an arbitrary title picture where `hasTitle` is set.
[[nodiscard]] CeremonyGridModel modelFromJson(const QJsonObject& object);

template <typename Numbers>
[[nodiscard]] QJsonArray numbers(const Numbers& values) {
    QJsonArray list;
    for (const auto value : values)
        list << static_cast<double>(value);
    return list;
}

} // namespace vantle::vectors
