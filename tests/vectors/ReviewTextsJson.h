// What the pages of a review say, as cases have it.
#pragma once

#include "review/stats/WrappedStats.h"

#include <QJsonObject>

namespace vantle::vectors {

[[nodiscard]] WrappedSettings reviewSettingsFromJson(const QJsonObject& input);

/// All ten pages of one period, whether or not it has them.
[[nodiscard]] QJsonValue reviewTexts(const QJsonObject& input);

} // namespace vantle::vectors
