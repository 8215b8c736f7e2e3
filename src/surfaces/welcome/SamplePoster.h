// A week that nobody worked, for the picture of a review.
#pragma once

#include "review/SharePoster.h"

namespace vantle {

/// Pure, any thread.
[[nodiscard]] SharePoster samplePoster();

} // namespace vantle
