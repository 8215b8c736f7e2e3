// The parts that implement the ports, one source file each.
//
// Only these sources know a backend. Main thread.
#pragma once

#include "base/Clock.h"
#include "base/Scheduler.h"
#include "platform/Autostart.h"
#include "platform/FileManager.h"
#include "platform/FileSystem.h"
#include "platform/FrontmostApp.h"
#include "platform/HotKeyPort.h"
#include "platform/IdleInhibition.h"
#include "platform/IdleSource.h"
#include "platform/ImageClipboard.h"
#include "platform/LanguageModel.h"
#include "platform/OverlayStage.h"
#include "platform/PanelHost.h"
#include "platform/Platform.h"
#include "platform/PointerPresses.h"
#include "platform/Preferences.h"
#include "platform/ProcessRunner.h"
#include "platform/ReadingWishes.h"
#include "platform/ReducedMotion.h"
#include "platform/ReservedStrips.h"
#include "platform/RunningCopy.h"
#include "platform/SaveDialog.h"
#include "platform/ScreenPower.h"
#include "platform/Screens.h"
#include "platform/SessionStatus.h"
#include "platform/TrayItem.h"
#include "platform/WindowHints.h"
#include "platform/WindowManager.h"

#include <QProcessEnvironment>

#include <functional>
#include <memory>
#include <optional>

namespace vantle {

/// The desktop's requests to the program. Main thread.
struct PlatformEvents {
    std::function<void()> activated = [] {}; ///< started again
    /// An action by name.
    std::function<void(const QString& action)> actionActivated = [](auto&) {};
    std::function<void()> endRequested = [] {}; ///< logout, shutdown, Ctrl-C
    std::function<void()> displayLost = [] {};  ///< no window can be shown any more
};

namespace platformparts {

// Members are destroyed in reverse order: those that others depend on come first.

/// Files, processes and desktop entries.
struct Posix {
    UserFolders folders;
    std::unique_ptr<FileSystem> fileSystem;
    std::unique_ptr<Preferences> preferences;
    std::unique_ptr<ProcessRunner> processRunner;
    std::unique_ptr<LanguageModel> languageModel;
    std::unique_ptr<Autostart> autostart;
    /// Returns the application that owns a window.
    std::function<Application(const WindowHints&)> identify;
};

/// What the display server implements.
struct Display {
    std::shared_ptr<void> connection; ///< the X11 connection, shared by the part
    std::shared_ptr<void> compositor; ///< the same for the Wayland compositor
    /// A Wayland compositor owns input, windows and pointer then.
    bool isXwayland = false;
    std::unique_ptr<IdleSource> idleSource;
    std::unique_ptr<FrontmostApp> frontmostApp;
    std::unique_ptr<HotKeyPort> hotKeyPort;
    std::unique_ptr<ScreenPower> screenPower; ///< moved into the session part
    std::unique_ptr<ReservedStrips> reservedStrips;
    /// Preferred over toolkit windows; null where there is none.
    std::unique_ptr<OverlayStage> overlayStage;
    std::unique_ptr<PanelHost> panelHost;
    std::unique_ptr<WindowManager> windowManager;
    std::unique_ptr<PointerPresses> pointerPresses;
};

/// What the session bus and the toolkit implement on every display.
struct Session {
    std::unique_ptr<IdleInhibition> idleInhibition;
    std::unique_ptr<ScreenPower> screenPower;
    std::unique_ptr<Screens> screens;
    std::unique_ptr<Clock> clock;
    std::unique_ptr<OverlayStage> overlayStage;
    std::unique_ptr<ReadingWishes> readingWishes;
    std::unique_ptr<ReducedMotion> reducedMotion;
    std::unique_ptr<TrayItem> trayItem;
    std::unique_ptr<ImageClipboard> imageClipboard;
    std::unique_ptr<SaveDialog> otherSaveDialog; ///< for a session without a portal
    std::unique_ptr<SaveDialog> saveDialog;
    std::unique_ptr<FileManager> fileManager;
    std::unique_ptr<RunningCopy> runningCopy;
    std::unique_ptr<SessionStatus> sessionStatus; ///< stands on the former's object
};

/// Child processes get `environment`.
[[nodiscard]] Posix makePosix(Scheduler& scheduler, const QProcessEnvironment& environment);

/// Calls `endRequested` for each termination signal until the watch is destroyed.
[[nodiscard]] std::shared_ptr<void> watchSignals(const PlatformEvents& events);

/// Whether there is an X server. Call before the application object, like x11SettledDpi().
[[nodiscard]] bool x11IsReachable();

/// Returns the desktop's dots per inch if a scale factor close to a whole number stands for that
/// number; empty otherwise.
[[nodiscard]] std::optional<int> x11SettledDpi();

/// The toolkit's plugin for X11 windows.
inline constexpr const char* kX11Windows = "xcb";

/// Makes the part for an X server or Xwayland. `posix` must outlive it.
[[nodiscard]] Display makeX11(Scheduler& scheduler, const PlatformEvents& events,
                              const Posix& posix);

/// Beside Xwayland: replaces ports that Xwayland cannot implement by those of the compositor and
/// the desktop's shell. Their first answers come some milliseconds later.
void addCompositor(Scheduler& scheduler, const Posix& posix, Display& display);

/// Makes the session part and moves screen power and overlay stage out of `display`. `posix` and
/// `display` must outlive it.
[[nodiscard]] Session makeSession(Scheduler& scheduler, const PlatformEvents& events,
                                  const Posix& posix, Display& display);

} // namespace platformparts
} // namespace vantle
