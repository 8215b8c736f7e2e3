// What the view models of windows are made from.
#pragma once

#include "base/Calendar.h"

#include <QString>

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

/// All of it must outlive the windows.
struct WindowParts {
    const Platform& platform;
    AppModel& model;
    SkillList& skills;
    NotificationCenter& notifications;
    const Clock& clock;
    Scheduler& scheduler;
    std::function<Calendar()> calendar;
    WindowRouter& router;
    AutoRules& autoRules; ///< of auto mode
    FocusLink& focusLink;
    const AppPaths& paths;
    SerialQueue& ioQueue;
    PosterSharing& posterSharing;
    std::function<void(const QString& text)> copy; ///< puts it into the clipboard
};

} // namespace vantle
