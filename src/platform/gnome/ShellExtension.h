// The program's extension for GNOME's shell.
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

/// Finds whether it is enabled, and enables it. The shell loads extensions at its start, in one
/// form up to version 44 and another from 45 on; there is an extension for each. Does not block.
/// Main thread.
class ShellExtension final : public QObject {
    Q_OBJECT

public:
    /// How long the shell may take to enable it.
    static constexpr Seconds patience{10};

    /// `shell` is `org.gnome.Shell`; `dataFolders` are the places of extensions. All references
    /// must outlive this object.
    ShellExtension(FollowedService& shell, Scheduler& scheduler, QStringList dataFolders);

    /// None also while the extension is on, or cannot be installed.
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
    QString m_uuid; ///< of the form for this shell; empty until its version is known
    FrontmostHelp m_help = FrontmostHelp::None;
    TimerHandle m_limit; ///< runs between the request and the extension's start
};

} // namespace vantle
