// The JSON form of a review's statistics in cases.
#pragma once

#include "review/stats/WrappedStats.h"
#include "vectors/Comparison.h"

#include <QJsonValue>

namespace vantle::vectors {

[[nodiscard]] QJsonValue toJson(const std::optional<BuilderPersona>& persona);
[[nodiscard]] QJsonValue toJson(const std::optional<StartRhythm>& rhythm);
[[nodiscard]] QJsonValue toJson(const std::vector<SuperlativeLine>& lines);

/// For texts in which ICU releases differ by the width of a blank ("9 AM"), and locales by the
/// digit separator ("1,500 min"): a process has one locale, but cases have several.
[[nodiscard]] Comparison withoutLocaleMarks();

} // namespace vantle::vectors
