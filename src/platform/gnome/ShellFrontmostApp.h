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

/// The shell itself tells programs nothing about other windows. The installed extension calls an
/// object of this program, under the name that `ApplicationService` owns, with the id of the
/// application in front; only calls from the shell's connection count. Until the user enables it,
/// help is offered and coverage is None. The shell may come and go. Main thread.
class ShellFrontmostApp final : public ReportedFrontmostApp {
    Q_OBJECT

public:
    /// Construct before the program requests its bus name: the extension calls as soon as it
    /// exists.
    ShellFrontmostApp(const QDBusConnection& session, QStringList dataFolders, Reading reading);

    [[nodiscard]] FrontmostHelp help() const override { return m_extension.help(); }
    void acceptHelp() override { m_extension.enable(); }

private:
    void take(const QDBusMessage& call);

    FollowedService m_shell;
    ShellExtension m_extension;
    /// A call that came before the shell's connection was known.
    std::optional<QDBusMessage> m_early;
    CalledObject m_reports;
};

} // namespace vantle
