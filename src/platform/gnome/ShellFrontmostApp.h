// The application in front, from GNOME's shell.
#pragma once

#include "platform/ReportedFrontmostApp.h"
#include "platform/bus/CalledObject.h"
#include "platform/bus/FollowedService.h"
#include "platform/gnome/ShellExtension.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>

#include <optional>

namespace vantle {

/// The shell tells programs nothing of other windows. The extension that is installed with this one
/// calls an object of this program, by the name that `ApplicationService` takes, with the id of the
/// application in front; only calls of the shell's own connection count. Until the user has
/// switched it on, help is offered and nothing can be told. The shell may come, go and come back.
/// Main thread.
class ShellFrontmostApp final : public ReportedFrontmostApp {
    Q_OBJECT

public:
    /// Before the program takes its name on the bus: then the extension calls.
    ShellFrontmostApp(const QDBusConnection& session, QStringList dataFolders, Reading reading);

    [[nodiscard]] FrontmostHelp help() const override { return m_extension.help(); }
    void acceptHelp() override { m_extension.enable(); }

private:
    void take(const QDBusMessage& call);

    FollowedService m_shell;
    ShellExtension m_extension;
    std::optional<QDBusMessage> m_early; ///< a call from before it was known who the shell is
    CalledObject m_reports;
};

} // namespace vantle
