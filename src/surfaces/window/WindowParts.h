// The objects from which window view models are made.
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

/// All of them must outlive the windows. Main thread.
struct WindowParts {
    const Platform& platform;
    AppModel& model;
    SkillList& skills;
    NotificationCenter& notifications;
    const Clock& clock;
    Scheduler& scheduler;
    std::function<Calendar()> calendar;
    WindowRouter& router;
    AutoRules& autoRules; ///< auto mode's
    FocusLink& focusLink;
    const AppPaths& paths;
    SerialQueue& ioQueue;
    PosterSharing& posterSharing;
    std::function<void(const QString& text)> copy; ///< copies to the clipboard
};

} // namespace vantle
