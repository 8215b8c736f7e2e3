// A process's application, from cgroups and sandboxes.
#pragma once

#include <QByteArray>
#include <QString>

namespace vantle {

/// Ids of desktop entries without suffix; empty where unknown. Any thread.
struct ProcessScope {
    /// The application whose sandbox holds the process.
    QString sandboxId;
    /// The application started as the process's systemd unit. Programs started by it, such as from
    /// a terminal, stay in its unit.
    QString unitId;
    QString program; ///< base name of its executable
    QString script;  ///< for an interpreter: what it runs, as `interpreters::scriptOf`
    friend bool operator==(const ProcessScope&, const ProcessScope&) = default;

    /// Reads /proc; empty for a process that is gone or another user's. Takes about 20 µs.
    [[nodiscard]] static ProcessScope read(qint64 processId);
    /// Parses a process's `cgroup` file and its sandbox's `.flatpak-info`. Pure.
    [[nodiscard]] static ProcessScope parse(const QByteArray& cgroup,
                                            const QByteArray& flatpakInfo);
};

} // namespace vantle
