// What happens when the program starts, is started again, and ends.
#pragma once

#include "app/AppModel.h"
#include "surfaces/menubar/StatusItemController.h"
#include "tracking/NotificationCenter.h"
#include "tracking/SingleInstanceLock.h"
#include "tracking/SkillList.h"

#include <functional>
#include <memory>

namespace vantle {

class Autostart;
class RecoveryActions;
class TrayItem;

/// Owns the top-level objects for the life of the process. Main thread.
class AppDelegate {
public:
    /// All of it must outlive the delegate.
    struct Environment {
        const Clock& clock;
        Scheduler& scheduler;
        SerialQueue& ioQueue;
        const AppPaths& paths;
        Preferences& preferences;
        IdleSource& idleSource;
        ScreenPower& screenPower;
        HotKeyPort& hotKeyPort;
        const ReducedMotion& reducedMotion;
        Autostart& autostart;
        TrayItem& trayItem;
        std::function<Calendar()> calendar;
        std::function<void()> terminate;           ///< ends the process
        std::function<void()> alertAlreadyRunning; ///< tells the person, and returns when they know
        bool startedAtLogin = false;               ///< then nothing may pop up
    };

    explicit AppDelegate(const Environment& environment);
    ~AppDelegate();

    /// Brings the program up. False when another copy holds the data: the person was told, nothing
    /// was touched, and the process is to end.
    [[nodiscard]] bool applicationDidFinishLaunching();

    /// The person started the program again while it runs.
    void applicationShouldHandleReopen();

    /// The process is about to end, for whatever reason. Does nothing the second time.
    void applicationWillTerminate();

    /// One of the actions that the desktop may call by name: "toggle", "keep", "discard", "quit".
    /// Unknown names do nothing.
    void performAction(const QString& name);

    /// Null before the launch, and in a second copy.
    [[nodiscard]] AppModel* model() { return m_model.get(); }

private:
    void registerLoginItemOnce();
    void makeModel();
    void makeStatusItem();
    void showCommandCenter();
    void showStatus();

    Environment m_env;
    SingleInstanceLock m_lock;
    NotificationCenter m_notifications;
    SkillList m_skills;
    RecoveryActions* m_recovery = nullptr; ///< owned by the model
    std::unique_ptr<AppModel> m_model;
    std::unique_ptr<StatusItemController> m_statusItem;
};

} // namespace vantle
