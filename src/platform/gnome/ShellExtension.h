// The extension of GNOME's shell that belongs to this program.
#pragma once

#include "base/Scheduler.h"
#include "platform/FrontmostApp.h"
#include "platform/bus/FollowedService.h"

#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace vantle {

/// Finds out whether the shell has the extension switched on, and switches it on. The shell looks
/// for extensions when it starts, and has a form of them up to version 44 and another one from 45
/// on; there is one extension for each. Nothing blocks. Main thread.
class ShellExtension final : public QObject {
    Q_OBJECT

public:
    /// A shell has that long to switch it on.
    static constexpr Seconds patience{10};

    /// `shell` is `org.gnome.Shell`. `dataFolders` are where extensions are installed. What the
    /// references name must outlive this.
    ShellExtension(FollowedService& shell, Scheduler& scheduler, QStringList dataFolders);

    /// None also while the extension is on, and where it can't be had.
    [[nodiscard]] FrontmostHelp help() const { return m_help; }
    void enable();

Q_SIGNALS:
    void helpChanged();

private:
    void meet();
    void look();
    void takeInfo(const QVariantMap& info);
    void setHelp(FrontmostHelp help);
    [[nodiscard]] bool isInstalled() const;
    [[nodiscard]] QDBusMessage extensions(const QString& method) const;

    FollowedService& m_shell;
    Scheduler& m_scheduler;
    const QStringList m_dataFolders;
    QString m_uuid; ///< of the form that this shell loads; empty until its version is known
    FrontmostHelp m_help = FrontmostHelp::None;
    TimerHandle m_limit; ///< while it was asked for and is not on
};

} // namespace vantle
