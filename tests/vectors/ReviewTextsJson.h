// The JSON form of a review's texts in cases.
#pragma once

#include "review/stats/WrappedStats.h"

#include <QJsonObject>

namespace vantle::vectors {

[[nodiscard]] WrappedSettings reviewSettingsFromJson(const QJsonObject& input);

/// All ten pages of one period, existing or not.
[[nodiscard]] QJsonValue reviewTexts(const QJsonObject& input);

} // namespace vantle::vectors
