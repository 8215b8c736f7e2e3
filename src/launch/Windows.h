// What stands in the program's windows, a line each.
#pragma once

#include "base/Calendar.h"

#include <functional>

namespace vantle {

class AppModel;
class AppPaths;
class AutoRules;
class Clock;
class FocusLink;
class NotificationCenter;
class PosterSharing;
class Scheduler;
class SerialQueue;
class SkillList;
class WindowRouter;
struct Platform;

/// What view models of windows are made from. All of it must outlive the windows.
struct WindowParts {
    const Platform& platform;
    AppModel& model;
    SkillList& skills;
    NotificationCenter& notifications;
    const Clock& clock;
    Scheduler& scheduler;
    std::function<Calendar()> calendar;
    WindowRouter& router;
    AutoRules& autoRules;
    FocusLink& focusLink;
    const AppPaths& paths;
    SerialQueue& ioQueue;
    PosterSharing& posterSharing;
};

/// Tells the router of every window that there is. Main thread, once.
void registerWindows(const WindowParts& parts);

} // namespace vantle
