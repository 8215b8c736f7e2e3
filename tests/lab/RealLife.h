// A scripted life on a real file system, in a process of its own that can be cut off.
#pragma once

#include "lab/FaultyLife.h"
#include "lab/Restart.h"
#include "lab/RootedFileSystem.h"
#include "lab/SupervisedProcess.h"

#include <array>
#include <vector>

namespace vantle::tests {

/// The steps of the life of that seed, lived on a disk in memory. Those on any other disk are the
/// same, down to the ids of the records.
[[nodiscard]] std::vector<Step> stepsOf(std::uint32_t seed);

class RealLife {
public:
    /// `root` is an empty directory, or one in which the life of the same seed was prepared before.
    RealLife(QString root, std::uint32_t seed) : m_root(std::move(root)), m_seed(seed) {}

    /// Decides with the number of the deed that is being done.
    using Decide = std::function<Verdict(const SystemCall& call, std::size_t deed)>;

    /// Lives it, without a look at it.
    Ending live(const Decide& decide);

    /// Lives it as a FaultyLife, where `code` is the one with which calls fail.
    Ending liveWithFaults(int code, const Decide& decide);
    /// The promises that did not hold there.
    [[nodiscard]] QString broken() const { return QString::fromUtf8(m_told->broken.data()); }

    /// What was known at the last call, or when it was decided upon the present one.
    [[nodiscard]] Moment moment() const;
    [[nodiscard]] std::size_t deed() const { return m_told->deed; }

private:
    /// What the life tells from its process.
    struct Told {
        std::size_t deed;
        double now; ///< seconds since the epoch
        bool isOpen;
        ScriptedLife::OpenSession open;
        bool failedMode;    ///< that of the log
        bool failedRemoval; ///< of any file
        std::array<char, 2000> broken;
    };

    void tell(const ScriptedLife& life) const;

    const QString m_root;
    const std::uint32_t m_seed;
    const SharedMemory<Told> m_told;
};

} // namespace vantle::tests
