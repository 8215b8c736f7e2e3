// A life of which every change of the disk may be the last one.
#pragma once

#include "lab/CrashStates.h"
#include "lab/Restart.h"
#include "lab/Sabotage.h"

#include <functional>
#include <limits>
#include <random>
#include <utility>

namespace vantle::tests {

/// Lives a scripted life. At each change of the disk it makes the states that a crash may leave,
/// starts the program on each, takes the offer, and looks at what is there.
class CrashedLife {
public:
    /// Counts over all lives.
    struct Counts {
        qint64 states = 0;
        qint64 torn = 0;
        qint64 hidden = 0;
        qint64 violations = 0;
    };

    /// Tells the promises that do not hold, and what was there. Returns whether to go on.
    using Report = std::function<bool(const QStringList& broken, const QByteArray& story)>;

    /// `counts` must outlive this object.
    CrashedLife(std::uint32_t seed, Counts& counts, Report report, Sabotage sabotage = {});

    /// Lives it, and tries `share` of all states, 1 for every one; of those that are possible at
    /// one moment, no more than `most`.
    void run(double share, std::size_t most = std::numeric_limits<std::size_t>::max());

private:
    void noteOpen();
    void follow(fakes::DiskChange change);
    void tell(const QStringList& broken, const QByteArray& story);
    [[nodiscard]] QStringList unacknowledged() const;
    void check(DiskState state, const Moment& moment);

    ScriptedLife m_life;
    std::mt19937 m_random;
    Counts& m_counts;
    const Report m_report;
    const Sabotage m_sabotage;
    Saboteur m_saboteur;
    CrashStates m_disk;
    Step m_step; ///< the one that is being lived
    std::vector<std::pair<Moment, std::vector<DiskState>>> m_moments; ///< of it
    double m_share = 1;
    std::size_t m_most = 0;
    bool m_goesOn = true;
};

} // namespace vantle::tests
