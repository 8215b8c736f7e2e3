#include "launch/PlatformParts.h"
#include "platform/applications/DesktopApplications.h"
#include "platform/applications/DesktopAutostart.h"
#include "platform/localmodel/SocketLanguageModel.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixProcessRunner.h"
#include "platform/posix/SettingsPreferences.h"
#include "platform/posix/TerminationSignals.h"
#include "platform/session/PortalAutostart.h"
#include "tracking/Settings.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDir>
#include <QFile>

#include <memory>
#include <utility>

namespace vantle::platformparts {

namespace {

/// Returns an XDG directory: the variable if it holds an absolute path, else the default under
/// home.
QString xdgDirectory(const char* variable, const QString& underHome) {
    const QString path = qEnvironmentVariable(variable);
    return path.startsWith(QLatin1Char('/')) ? path : QDir::homePath() + underHome;
}

std::unique_ptr<Autostart> makeAutostart(FileSystem& disk, Preferences& preferences,
                                         const QString& config) {
    if (QFile::exists(QStringLiteral("/.flatpak-info")))
        return std::make_unique<PortalAutostart>(QDBusConnection::sessionBus(), preferences,
                                                 settings::loginByPortal);
    return std::make_unique<DesktopAutostart>(
        disk, config + QStringLiteral("/autostart/local.vantle.Vantle.desktop"),
        QCoreApplication::applicationFilePath());
}

} // namespace

Posix makePosix(Scheduler& scheduler, const QProcessEnvironment& environment) {
    const UserFolders folders{xdgDirectory("XDG_CONFIG_HOME", QStringLiteral("/.config")),
                              xdgDirectory("XDG_DATA_HOME", QStringLiteral("/.local/share"))};
    auto files = std::make_unique<PosixFileSystem>();
    PosixFileSystem& disk = *files;
    auto preferences = std::make_unique<SettingsPreferences>(
        disk, folders.config + QStringLiteral("/Vantle/preferences.ini"));
    auto autostart = makeAutostart(disk, *preferences, folders.config);
    const auto applications =
        std::make_shared<DesktopApplications>(DesktopApplications::standardFolders());
    return {.folders = folders,
            .fileSystem = std::move(files),
            .preferences = std::move(preferences),
            .processRunner = std::make_unique<PosixProcessRunner>(environment),
            .languageModel = std::make_unique<SocketLanguageModel>(
                disk, folders.config + QStringLiteral("/Vantle/language-model.conf"), scheduler),
            .autostart = std::move(autostart),
            .identify = [applications](const WindowHints& hints) {
                return applications->identify(hints);
            }};
}

std::shared_ptr<void> watchSignals(const PlatformEvents& events) {
    return std::make_shared<TerminationSignals>([end = events.endRequested](int) { end(); });
}

} // namespace vantle::platformparts
