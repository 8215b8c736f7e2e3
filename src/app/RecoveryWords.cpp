#include "app/RecoveryWords.h"

#include "base/Words.h"
#include "tracking/DashFormat.h"

#include <algorithm>

namespace vantle {

RecoveryWords recoveryWords(const Session& candidate, DurationStyle style) {
    const QString label =
        dashformat::sessionDuration(std::max<std::int64_t>(candidate.activeSeconds, 60), style);
    return {
        Words::tr("Found %1 from the previous run · choose Keep or Discard").arg(label),
        Words::tr("Recovered %1 from the previous run").arg(label),
    };
}

} // namespace vantle
