// Sample posters for gallery, tests and benchmarks.
#pragma once

#include "review/SharePoster.h"

namespace vantle::samples {

/// A Friday afternoon in Berlin, the date of the sample posters.
[[nodiscard]] WrappedSettings posterSettings();

/// A sample review: 18 hours in a week, 41 in a month, 428 of all time.
[[nodiscard]] WrappedStats posterStats(WrappedPeriod period, const QString& personaName);

/// Returns its poster. Without a persona's name it shows the hours.
[[nodiscard]] SharePoster sharePoster(WrappedPeriod period, const QString& personaName = {});

} // namespace vantle::samples
