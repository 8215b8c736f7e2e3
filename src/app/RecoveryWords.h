// What the person reads about a session that the last run left open. Pure, any thread.
#pragma once

#include "tracking/DurationStyle.h"
#include "tracking/Session.h"

#include <QString>

namespace vantle {

struct RecoveryWords {
    QString found;     ///< with the offer
    QString recovered; ///< after it was kept
};

[[nodiscard]] RecoveryWords recoveryWords(const Session& candidate, DurationStyle style);

} // namespace vantle
