// The ports of one desktop.
#pragma once

#include <QString>

namespace vantle {

class Autostart;
class FileManager;
class FileSystem;
class FrontmostApp;
class HotKeyPort;
class IdleInhibition;
class IdleSource;
class ImageClipboard;
class LanguageModel;
class OverlayStage;
class PanelHost;
class PointerPresses;
class Preferences;
class ProcessRunner;
class ReadingWishes;
class ReducedMotion;
class RunningCopy;
class SaveDialog;
class ScreenPower;
class Screens;
class SessionStatus;
class TrayItem;
class WindowManager;

/// The user's directories, absolute.
struct UserFolders {
    QString config; ///< for preferences and user files
    QString data;   ///< for the data directory
};

/// One object per port; all of them outlive their users. Main thread.
struct Platform {
    FileSystem& fileSystem;
    UserFolders folders;
    Preferences& preferences;
    ProcessRunner& processRunner;
    LanguageModel& languageModel;
    Autostart& autostart;

    IdleSource& idleSource;
    IdleInhibition& idleInhibition;
    FrontmostApp& frontmostApp;
    HotKeyPort& hotKeyPort;
    PanelHost& panelHost;
    WindowManager& windowManager;
    PointerPresses& pointerPresses;

    ScreenPower& screenPower;
    Screens& screens;
    OverlayStage& overlayStage;
    ReadingWishes& readingWishes;
    ReducedMotion& reducedMotion;
    TrayItem& trayItem;
    ImageClipboard& imageClipboard;
    SaveDialog& saveDialog;
    FileManager& fileManager;
    RunningCopy& runningCopy;
    SessionStatus& sessionStatus;
};

} // namespace vantle
