// What stands in the program's windows, a line each.
#pragma once

#include "base/Calendar.h"

#include <functional>

namespace vantle {

class AppModel;
class Clock;
class NotificationCenter;
class Preferences;
class Scheduler;
class SkillList;
class WindowRouter;

/// What view models of windows are made from. All of it must outlive the windows.
struct WindowParts {
    AppModel& model;
    SkillList& skills;
    NotificationCenter& notifications;
    Preferences& preferences;
    const Clock& clock;
    Scheduler& scheduler;
    std::function<Calendar()> calendar;
    WindowRouter& router;
};

/// Tells the router of every window that there is. Main thread, once.
void registerWindows(const WindowParts& parts);

} // namespace vantle
