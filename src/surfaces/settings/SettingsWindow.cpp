#include "surfaces/settings/SettingsWindow.h"

#include "app/AppModel.h"
#include "base/Words.h"
#include "platform/FileManager.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"
#include "surfaces/settings/SettingsView.h"
#include "surfaces/window/WindowParts.h"
#include "surfaces/window/WindowRouter.h"

namespace vantle {

namespace {

/// After an erase the user is new: sessions are practice until the welcome is done. The welcome
/// reopens once the settings have shown the result of the erase.
std::optional<QString> eraseAndStartOver(AppModel& model, WindowRouter& router) {
    auto failure = model.eraseEverything();
    if (model.needsWelcome())
        QMetaObject::invokeMethod(
            &router, [&router] { router.show(WindowId::Welcome); }, Qt::QueuedConnection);
    return failure;
}

/// Opens the shortcuts folder; creates it with private permissions if missing.
Result<> openShortcuts(const Platform& platform) {
    constexpr int kPrivateDirectory = 0700;
    const QString folder = platform.folders.config + QStringLiteral("/Vantle/shortcuts");
    if (auto made = platform.fileSystem.makeDirectories(folder, kPrivateDirectory); !made)
        return made;
    platform.fileManager.openFolder(folder);
    return {};
}

std::unique_ptr<QObject> makeModel(const WindowParts& parts) {
    return std::make_unique<SettingsView>(SettingsView::Environment{
        .model = parts.model,
        .rules = parts.autoRules,
        .focusLink = parts.focusLink,
        .autostart = parts.platform.autostart,
        .preferences = parts.platform.preferences,
        .notifications = parts.notifications,
        .paths = parts.paths,
        .ioQueue = parts.ioQueue,
        .reveal = [&manager =
                       parts.platform.fileManager](const QString& path) { manager.reveal(path); },
        .openShortcuts = [&platform = parts.platform] { return openShortcuts(platform); },
        .tray = parts.platform.trayItem,
        .idleSource = parts.platform.idleSource,
        .idleInhibition = parts.platform.idleInhibition,
        .frontmostApp = parts.platform.frontmostApp,
        .overlayStage = parts.platform.overlayStage,
        .copy = parts.copy,
        .eraseAllData = [&model = parts.model,
                         &router = parts.router] { return eraseAndStartOver(model, router); }});
}

} // namespace

WindowRules settingsWindowRules() {
    // Its rows scroll under the title strip, so a lower window loses nothing.
    return {.title = Words::tr("Settings"),
            .showsTitle = true,
            .contentSize = {480, 620},
            .scrollableHeight = 240};
}

WindowSpec settingsWindow(const WindowParts& parts) {
    return {.id = WindowId::Settings,
            .action = QStringLiteral("settings"),
            .door = {Words::tr("Settings"), QStringLiteral(",")},
            .rules = settingsWindowRules(),
            .content = {viewAt("Settings/SettingsPage"),
                        [parts](const auto&) { return makeModel(parts); }}};
}

} // namespace vantle
