// Faults of which the program knows nothing, to try the checkers of the lab.
#pragma once

#include "fakes/MemoryFileSystem.h"

#include <functional>
#include <map>

namespace vantle::tests {

/// What goes wrong with one kind of change of some files. Does nothing by default.
struct Sabotage {
    enum class Effect {
        None,
        Unsafe,  ///< it is done, but a crash may undo it: the sync that never was
        Altered, ///< another content is written
        Undone,  ///< the name stays as it was
    };
    enum class At {
        Life,    ///< in the life itself
        Crash,   ///< of what a crash leaves; always alters
        Restart, ///< in the program that is started on it
    };
    Effect effect = Effect::None;
    fakes::DiskChange::Kind kind = fakes::DiskChange::Kind::Write;
    const char* file = ""; ///< a part of the name of the file; empty for all
    std::function<QByteArray(const QByteArray&)> alter;
    At at = At::Life;
};

/// Carries a sabotage out. Learns the names of files from the changes it sees.
class Saboteur {
public:
    /// `disk` is read once.
    Saboteur(Sabotage sabotage, const fakes::MemoryFileSystem& disk);

    /// Tampers with the disk. Returns whether the change becomes safe as the program believes.
    [[nodiscard]] bool pass(fakes::DiskChange& change);

private:
    void learn(const fakes::MemoryNode& directory);

    const Sabotage m_sabotage;
    std::map<const fakes::MemoryNode*, QString> m_names;
};

} // namespace vantle::tests
