// The one place that knows which desktop the program runs on.
#pragma once

#include "base/Scheduler.h"
#include "platform/Autostart.h"
#include "platform/FileSystem.h"
#include "platform/FrontmostApp.h"
#include "platform/HotKeyPort.h"
#include "platform/IdleSource.h"
#include "platform/ImageClipboard.h"
#include "platform/LanguageModel.h"
#include "platform/PanelHost.h"
#include "platform/PointerPresses.h"
#include "platform/Preferences.h"
#include "platform/ProcessRunner.h"
#include "platform/ReducedMotion.h"
#include "platform/SaveDialog.h"
#include "platform/ScreenPower.h"
#include "platform/Screens.h"
#include "platform/TrayItem.h"
#include "platform/WindowManager.h"

#include <QProcessEnvironment>
#include <QString>

#include <functional>
#include <memory>

namespace vantle {

/// What the desktop asks of the program. Set before the platform is made; all on the main thread.
struct PlatformEvents {
    std::function<void()> activated;                            ///< started again, or clicked
    std::function<void(const QString& action)> actionActivated; ///< by name
    std::function<void()> endRequested;                         ///< logout, shutdown, Ctrl-C
    std::function<void()> displayLost;                          ///< nothing can be shown any more
};

/// The desktop behind the ports. Make it on the main thread, after the application object.
class Platform {
public:
    virtual ~Platform() = default;

    [[nodiscard]] virtual FileSystem& fileSystem() = 0;
    [[nodiscard]] virtual Preferences& preferences() = 0;
    [[nodiscard]] virtual IdleSource& idleSource() = 0;
    [[nodiscard]] virtual ScreenPower& screenPower() = 0;
    [[nodiscard]] virtual HotKeyPort& hotKeyPort() = 0;
    [[nodiscard]] virtual FrontmostApp& frontmostApp() = 0;
    [[nodiscard]] virtual ProcessRunner& processRunner() = 0;
    [[nodiscard]] virtual ReducedMotion& reducedMotion() = 0;
    [[nodiscard]] virtual Autostart& autostart() = 0;
    [[nodiscard]] virtual TrayItem& trayItem() = 0;
    [[nodiscard]] virtual LanguageModel& languageModel() = 0;
    [[nodiscard]] virtual Screens& screens() = 0;
    [[nodiscard]] virtual PanelHost& panelHost() = 0;
    [[nodiscard]] virtual WindowManager& windowManager() = 0;
    [[nodiscard]] virtual PointerPresses& pointerPresses() = 0;
    [[nodiscard]] virtual ImageClipboard& imageClipboard() = 0;
    [[nodiscard]] virtual SaveDialog& saveDialog() = 0;

    /// The directory under which the support directory lies.
    [[nodiscard]] virtual QString dataHome() const = 0;

    /// Puts a file into the person's trash. Blocks.
    [[nodiscard]] virtual Result<> moveToTrash(const QString& path) = 0;
    /// Shows the file in the person's file manager, if there is one.
    virtual void reveal(const QString& path) = 0;
    /// Opens the folder of the person's shortcuts there; makes it, private, if it is missing.
    [[nodiscard]] virtual Result<> openShortcuts() = 0;

    /// Answers other copies and the desktop from now on. Only the copy that holds the data does.
    virtual void listen() = 0;

    /// For a copy that does not hold the data: asks the one that does to show itself. Waits for its
    /// answer, two seconds at the most; returns whether there was one.
    [[nodiscard]] virtual bool showRunningCopy() = 0;
};

namespace platformfactory {

/// Whether there is a desktop at all. Before the application object, which can't live without one.
[[nodiscard]] bool desktopIsReachable();

/// Goes on without the session bus where it takes calls and never answers: the toolkit connects to
/// it at its start and would wait for a minute. A second at the most, and only there. Before the
/// application object.
void leaveMuteSessionBus();

/// Takes a scale factor next to a whole number for that number, unless the session's environment
/// tells the toolkit a size. Before the application object.
void settleScaleFactor();

/// `environment` is what programs that are started find.
[[nodiscard]] std::unique_ptr<Platform> makePlatform(Scheduler& scheduler, PlatformEvents events,
                                                     const QProcessEnvironment& environment);

} // namespace platformfactory
} // namespace vantle
