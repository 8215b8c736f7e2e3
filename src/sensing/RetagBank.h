// How much of the stay in an application is already served, so that a glance elsewhere does not
// begin it anew.
//
// A plain value, any thread. Times are those of the wall clock; a clock that was set back makes a
// rest longer or an interruption fresh, and never fails.
#pragma once

#include "base/Date.h"

#include <QString>

#include <optional>

namespace vantle {

/// The one stay that runs, and the one that was interrupted last.
class RetagBank {
public:
    static constexpr double dwellSeconds = 45;
    static constexpr double graceSeconds = 20;      ///< how long an interrupted stay is kept
    static constexpr double leastBankSeconds = 0.5; ///< a rest up to this is not worth keeping

    /// A stay begins that has `seconds` to run.
    void arm(const QString& bundleId, double seconds, Date now);

    /// Whatever runs is interrupted, and kept if enough of it is left. A stay that was kept before
    /// goes then: there is one place only.
    void interrupt(Date now);

    /// How many seconds a stay has to run that begins now. What was kept for the application is
    /// used up by the question.
    [[nodiscard]] double takeDwell(const QString& bundleId, Date now);

    void clear() { *this = {}; }

private:
    struct Stay {
        QString bundleId;
        double remaining = 0; ///< seconds
        Date at;              ///< when it was armed, or interrupted
    };
    std::optional<Stay> m_armed;
    std::optional<Stay> m_banked;
};

} // namespace vantle
