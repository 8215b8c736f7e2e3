// Which application a process belongs to, as the system keeps account of it.
#pragma once

#include <QByteArray>
#include <QString>

namespace vantle {

/// Ids are of desktop entries, without suffix; empty where the process tells none.
struct ProcessScope {
    /// The application whose sandbox holds the process. What runs in there is nothing else.
    QString sandboxId;
    /// The application that was started as the unit which holds the process. Programs that were
    /// started from within that one, as from a terminal, stay in its unit.
    QString unitId;
    QString program; ///< base name of its executable
    QString script;  ///< what that runs where it is an interpreter, as `interpreters::scriptOf`
    friend bool operator==(const ProcessScope&, const ProcessScope&) = default;

    /// Reads what /proc tells; a process that is gone or not ours tells nothing. Takes some 20 µs.
    [[nodiscard]] static ProcessScope read(qint64 processId);
    /// From the contents of a process's `cgroup` file and of its sandbox's `.flatpak-info`. Pure.
    [[nodiscard]] static ProcessScope parse(const QByteArray& cgroup,
                                            const QByteArray& flatpakInfo);
};

} // namespace vantle
