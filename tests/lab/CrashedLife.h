// A life of which every change of the disk may be the last one.
#pragma once

#include "lab/CrashStates.h"
#include "lab/Sabotage.h"
#include "lab/ScriptedLife.h"

#include <functional>
#include <limits>
#include <random>

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
    friend class Restart;
    using OpenSession = ScriptedLife::OpenSession;

    /// What was known when a state was possible.
    struct Moment {
        Date now;
        std::optional<OpenSession> open;
        std::vector<DiskState> states;
    };

    /// One deed of a life: what was there before and after it.
    struct Step {
        const char* deed;
        Account before;
        Account after;
        QMap<QString, QString> preferences;
        std::vector<OpenSession> open; ///< at any time of it
        std::vector<Moment> moments;
    };

    [[nodiscard]] QMap<QString, QString> preferences() const;
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
    Step m_step;
    double m_share = 1;
    std::size_t m_most = 0;
    bool m_goesOn = true;
};

} // namespace vantle::tests
