// The remaining time of an interrupted stay in an application.
//
// A short look elsewhere does not restart the stay. Plain value, any thread. Times are of the wall
// clock; setting it back lengthens a remainder or renews an interruption, and does no other harm.
#pragma once

#include "base/Date.h"

#include <QString>

#include <optional>

namespace vantle {

/// The stay in progress, and the one interrupted last.
class RetagBank {
public:
    static constexpr double dwellSeconds = 45;
    static constexpr double graceSeconds = 20;      ///< how long an interrupted stay is kept
    static constexpr double leastBankSeconds = 0.5; ///< a shorter remainder is dropped

    /// Starts a stay that has `seconds` left.
    void arm(const QString& bundleId, double seconds, Date now);

    /// Interrupts the stay in progress and keeps its remainder, in place of an earlier one.
    void interrupt(Date now);

    /// Returns how many seconds a stay that begins now has left, and drops the remainder kept for
    /// the application.
    [[nodiscard]] double takeDwell(const QString& bundleId, Date now);

    void clear() { *this = {}; }

private:
    struct Stay {
        QString bundleId;
        double remaining = 0; ///< seconds
        Date at;              ///< when it was started or interrupted
    };
    std::optional<Stay> m_armed;
    std::optional<Stay> m_banked;
};

} // namespace vantle
