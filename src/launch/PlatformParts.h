// What answers the ports, in the parts that it is made of. Only the sources of the parts know a
// backend.
#pragma once

#include "base/Clock.h"
#include "base/Scheduler.h"
#include "platform/Autostart.h"
#include "platform/FileManager.h"
#include "platform/FileSystem.h"
#include "platform/FrontmostApp.h"
#include "platform/HotKeyPort.h"
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
#include "platform/TrayItem.h"
#include "platform/WindowHints.h"
#include "platform/WindowManager.h"

#include <QProcessEnvironment>

#include <functional>
#include <memory>
#include <optional>

namespace vantle {

/// What the desktop asks of the program. All on the main thread.
struct PlatformEvents {
    std::function<void()> activated = [] {};                                   ///< started again
    std::function<void(const QString& action)> actionActivated = [](auto&) {}; ///< by name
    std::function<void()> endRequested = [] {}; ///< logout, shutdown, Ctrl-C
    std::function<void()> displayLost = [] {};  ///< nothing can be shown any more
};

namespace platformparts {

// Members go in reverse order: what others of the part stand on comes first.

/// Files, programs and the desktop entries that belong to them.
struct Posix {
    UserFolders folders;
    std::unique_ptr<FileSystem> fileSystem;
    std::unique_ptr<Preferences> preferences;
    std::unique_ptr<ProcessRunner> processRunner;
    std::unique_ptr<LanguageModel> languageModel;
    std::unique_ptr<Autostart> autostart;
    std::function<Application(const WindowHints&)> identify; ///< whose a window is
};

/// What only the server of the display can answer.
struct Display {
    std::shared_ptr<void> connection; ///< what all of the part share
    std::shared_ptr<void> compositor; ///< the same of what the server stands beside
    /// Then a Wayland compositor has the input, the windows and the pointer over them.
    bool isXwayland = false;
    std::unique_ptr<IdleSource> idleSource;
    std::unique_ptr<FrontmostApp> frontmostApp;
    std::unique_ptr<HotKeyPort> hotKeyPort;
    std::unique_ptr<ScreenPower> screenPower; ///< goes into that of the session
    std::unique_ptr<ReservedStrips> reservedStrips;
    std::unique_ptr<OverlayStage> overlayStage; ///< one better than windows; null where none is
    std::unique_ptr<PanelHost> panelHost;
    std::unique_ptr<WindowManager> windowManager;
    std::unique_ptr<PointerPresses> pointerPresses;
};

/// What the session's bus and the toolkit answer on every kind of display.
struct Session {
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
};

/// `environment` is what programs that are started find.
[[nodiscard]] Posix makePosix(Scheduler& scheduler, const QProcessEnvironment& environment);

/// The signals that ask a process to end call `endRequested` until the watch is destroyed.
[[nodiscard]] std::shared_ptr<void> watchSignals(const PlatformEvents& events);

/// Whether there is an X server. Before the application object, as the next.
[[nodiscard]] bool x11IsReachable();

/// The desktop's dots per inch, where a scale factor next to a whole number is meant for that.
[[nodiscard]] std::optional<int> x11SettledDpi();

/// The toolkit's name for such windows.
inline constexpr const char* kX11Windows = "xcb";

/// An X server, Xwayland included. `posix` must outlive the part.
[[nodiscard]] Display makeX11(Scheduler& scheduler, const PlatformEvents& events,
                              const Posix& posix);

/// Beside an Xwayland server, lets the compositor and the desktop's shell tell what that server
/// can't, or nobody. They answer some milliseconds later.
void addCompositor(Scheduler& scheduler, const Posix& posix, Display& display);

/// `posix` and `display` must outlive the part, which takes the latter's screen power and overlay
/// stage over.
[[nodiscard]] Session makeSession(Scheduler& scheduler, const PlatformEvents& events,
                                  const Posix& posix, Display& display);

} // namespace platformparts
} // namespace vantle
