// The texts about a session that the last run left open.
//
// Pure function, any thread.
#pragma once

#include "tracking/DurationStyle.h"
#include "tracking/Session.h"

#include <QString>

namespace vantle {

struct RecoveryWords {
    QString found;     ///< shown with the offer
    QString recovered; ///< shown after the user kept it
};

[[nodiscard]] RecoveryWords recoveryWords(const Session& candidate, DurationStyle style);

} // namespace vantle
