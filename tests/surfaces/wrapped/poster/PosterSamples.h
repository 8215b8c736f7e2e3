// Posters of made-up reviews: as they are drawn into the gallery, tested and measured.
#pragma once

#include "review/SharePoster.h"

namespace vantle::samples {

/// A Friday afternoon in Berlin, of which the posters speak.
[[nodiscard]] WrappedSettings posterSettings();

/// A review with that much in it: 18 hours in a week, 41 in a month, 428 of all time.
[[nodiscard]] WrappedStats posterStats(WrappedPeriod period, const QString& personaName);

/// Its poster. Without a name of a type there are the hours in its place.
[[nodiscard]] SharePoster sharePoster(WrappedPeriod period, const QString& personaName = {});

} // namespace vantle::samples
