// How long another program on the bus has to answer.
#pragma once

namespace vantle {

/// Milliseconds. Enough for a service that the call starts first; after that it counts as absent.
inline constexpr int kAnswerLimitMs = 2000;

} // namespace vantle
