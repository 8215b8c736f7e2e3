// What stands in the program's windows, a line each.
#pragma once

#include "base/Calendar.h"
#include "base/Result.h"

#include <functional>

namespace vantle {

class AppModel;
class AppPaths;
class AutoRules;
class Autostart;
class Clock;
class FocusLink;
class LanguageModel;
class NotificationCenter;
class PanelHost;
class PosterSharing;
class Preferences;
class ReducedMotion;
class Scheduler;
class SerialQueue;
class SkillList;
class TrayItem;
class WindowRouter;

/// What view models of windows are made from. All of it must outlive the windows.
struct WindowParts {
    AppModel& model;
    SkillList& skills;
    NotificationCenter& notifications;
    Preferences& preferences;
    const Clock& clock;
    Scheduler& scheduler;
    const ReducedMotion& reducedMotion;
    std::function<Calendar()> calendar;
    WindowRouter& router;
    AutoRules& autoRules;
    FocusLink& focusLink;
    Autostart& autostart;
    const AppPaths& paths;
    SerialQueue& ioQueue;
    std::function<void(const QString& path)> reveal; ///< shows a file in the file manager
    std::function<Result<>()> openShortcuts;         ///< opens the folder of shortcuts
    LanguageModel& languageModel;
    PosterSharing& posterSharing;
    const TrayItem& tray;
    const IdleSource& idleSource;
    const FrontmostApp& frontmostApp;
    const PanelHost& panelHost;
};

/// Tells the router of every window that there is. Main thread, once.
void registerWindows(const WindowParts& parts);

} // namespace vantle
