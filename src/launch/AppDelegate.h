// The program's lifecycle: start, second start, end.
#pragma once

#include "app/AppModel.h"
#include "app/OpenQuestions.h"
#include "app/SessionReport.h"
#include "launch/MissingTray.h"
#include "launch/SpokenEvents.h"
#include "platform/HeldKey.h"
#include "platform/Platform.h"
#include "sensing/AutoSkillMonitor.h"
#include "sensing/CallPresence.h"
#include "sensing/FocusLink.h"
#include "surfaces/commandcenter/CommandCenterController.h"
#include "surfaces/menubar/StatusItemController.h"
#include "surfaces/window/WindowRouter.h"
#include "tracking/NotificationCenter.h"
#include "tracking/SingleInstanceLock.h"
#include "tracking/SkillList.h"

#include <functional>
#include <memory>

namespace vantle {

class CardStage;
class PosterSharing;
class RecoveryNoticeController;
class SharedEngine;
class StopSummaryController;

/// Owns the top-level objects. Main thread.
class AppDelegate {
public:
    /// All of it must outlive the delegate.
    struct Environment {
        const Platform& platform;
        const Clock& clock;
        Scheduler& scheduler;
        SerialQueue& ioQueue;
        SerialQueue& autoSkillQueue; ///< for auto mode's file
        const AppPaths& paths;
        PosterSharing& posterSharing;
        CardStage& cardStage;
        SharedEngine& viewEngine; ///< for the panel and the windows
        QString shortcutsTool;    ///< absolute path of the program that runs shortcuts
        /// Makes the capsule. Without it there is none.
        std::function<std::unique_ptr<collaborators::Notch>()> makeNotch = {};
        /// Makes the ceremony. Without it none plays.
        std::function<std::unique_ptr<collaborators::Ripple>()> makeRipple = {};
        std::function<Calendar()> calendar;
        /// Offers to move a downloaded program. Returns true when a copy elsewhere takes over.
        std::function<bool()> offerMoveToApplications;
        std::function<void()> terminate; ///< ends the process
        /// Tells the user; returns once the alert is closed.
        std::function<void()> alertAlreadyRunning;
        /// Started at login, or by the bus for a call to come: no window may open.
        bool startedUnasked = false;
    };

    explicit AppDelegate(const Environment& environment);
    ~AppDelegate();

    /// Starts the program. Returns false when another copy takes over or holds the data; no data
    /// was touched then, and the process is to end.
    [[nodiscard]] bool applicationDidFinishLaunching();

    /// The user started the program again while it runs.
    void applicationShouldHandleReopen();

    /// The process is about to end. Has no effect the second time.
    void applicationWillTerminate();
    /// Like applicationWillTerminate(), without touching windows or views.
    void applicationWillTerminateUnseen();

    /// Runs an action that the desktop calls by name: "toggle", "toggle-by-key", "keep", "discard",
    /// "note", "quit", or a window's (`WindowSpec::action`). Ignores unknown names.
    void performAction(const QString& name);

    /// Null before the launch, and in a second copy.
    [[nodiscard]] AppModel* model() { return m_model.get(); }
    [[nodiscard]] CommandCenterController* commandCenter() { return m_commandCenter.get(); }
    [[nodiscard]] WindowRouter* router() { return m_router.get(); }

private:
    void registerLoginItemOnce();
    void makeModel();
    void makeCards(Collaborators& collaborators);
    void makeWindows();
    void makeStatusItem();
    void showFirstPanel();
    void showCommandCenter();
    void showStatus();
    void toggleByBoundKey();

    const Environment m_env;
    const Platform& m_platform;
    /// Runs while the bus call may come that the program was started for.
    TimerHandle m_firstCall;
    SingleInstanceLock m_lock;
    NotificationCenter m_notifications;
    SkillList m_skills;
    CallPresence m_idleSource; ///< of the platform, and of calls
    AutoSkillMonitor m_autoSkill;
    FocusLink m_focusLink;
    TopRightCardSlot m_cardSlot;
    OpenQuestions m_questions;
    RecoveryNoticeController* m_recovery = nullptr; ///< owned by the model
    StopSummaryController* m_summary = nullptr;     ///< owned by the model
    std::unique_ptr<AppModel> m_model;
    std::unique_ptr<SpokenEvents> m_spoken;
    std::unique_ptr<SessionReport> m_report;
    std::unique_ptr<WindowRouter> m_router;
    std::unique_ptr<CommandCenterController> m_commandCenter;
    std::unique_ptr<StatusItemController> m_statusItem;
    MissingTray m_missingTray;
    HeldKey m_boundKey;         ///< bound to the command, which tells no releases
    TimerHandle m_trayPatience; ///< set while the first panel waits for the tray
    QMetaObject::Connection m_trayPlaced;
};

} // namespace vantle
