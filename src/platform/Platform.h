// The desktop and the machine, as everything above the ports knows them.
#pragma once

#include <QString>

namespace vantle {

class Autostart;
class FileManager;
class FileSystem;
class FrontmostApp;
class HotKeyPort;
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
class TrayItem;
class WindowManager;

/// The user's own directories, absolute.
struct UserFolders {
    QString config; ///< preferences and what the user writes for the program
    QString data;   ///< the directory under which the support directory lies
};

/// One of each port. What it refers to outlives all who get it.
struct Platform {
    FileSystem& fileSystem;
    UserFolders folders;
    Preferences& preferences;
    ProcessRunner& processRunner;
    LanguageModel& languageModel;
    Autostart& autostart;

    IdleSource& idleSource;
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
};

} // namespace vantle
