// What happens when the program starts, is started again, and ends.
#pragma once

#include "app/AppModel.h"
#include "app/OpenQuestions.h"
#include "launch/MissingTray.h"
#include "launch/SpokenEvents.h"
#include "platform/Platform.h"
#include "sensing/AutoSkillMonitor.h"
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

/// Owns the top-level objects for the life of the process. Main thread.
class AppDelegate {
public:
    /// All of it must outlive the delegate.
    struct Environment {
        const Platform& platform;
        const Clock& clock;
        Scheduler& scheduler;
        SerialQueue& ioQueue;
        SerialQueue& autoSkillQueue; ///< of auto mode's own file
        const AppPaths& paths;
        PosterSharing& posterSharing;
        CardStage& cardStage;
        SharedEngine& viewEngine; ///< of the panel and the windows
        QString shortcutsTool;    ///< absolute path of the program that runs shortcuts
        /// Makes the capsule; there is none without.
        std::function<std::unique_ptr<collaborators::Notch>()> makeNotch = {};
        /// Makes what plays at both ends of a session; nothing plays without.
        std::function<std::unique_ptr<collaborators::Ripple>()> makeRipple = {};
        std::function<Calendar()> calendar;
        /// Offers to move a downloaded program; true when a copy elsewhere takes over.
        std::function<bool()> offerMoveToApplications;
        std::function<void()> terminate;           ///< ends the process
        std::function<void()> alertAlreadyRunning; ///< tells the user, and returns when they know
        /// At login, or by the bus for a call that is about to come: nothing may pop up.
        bool startedUnasked = false;
    };

    explicit AppDelegate(const Environment& environment);
    ~AppDelegate();

    /// Brings the program up. False when another copy takes over or holds the data: that one
    /// shows itself, or the person knows, nothing was touched, and the process is to end.
    [[nodiscard]] bool applicationDidFinishLaunching();

    /// The person started the program again while it runs.
    void applicationShouldHandleReopen();

    /// The process is about to end, for whatever reason. Does nothing the second time.
    void applicationWillTerminate();
    /// The same where nothing that is drawn may be touched any more.
    void applicationWillTerminateUnseen();

    /// One of the actions that the desktop may call by name: "toggle", "keep", "discard", "note",
    /// "quit", and those of the windows (`WindowSpec::action`). Unknown names do nothing.
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

    const Environment m_env;
    const Platform& m_platform;
    /// While the call may come for which the bus started the program.
    TimerHandle m_firstCall;
    SingleInstanceLock m_lock;
    NotificationCenter m_notifications;
    SkillList m_skills;
    AutoSkillMonitor m_autoSkill;
    FocusLink m_focusLink;
    TopRightCardSlot m_cardSlot;
    OpenQuestions m_questions;
    RecoveryNoticeController* m_recovery = nullptr; ///< owned by the model
    StopSummaryController* m_summary = nullptr;     ///< owned by the model
    std::unique_ptr<AppModel> m_model;
    std::unique_ptr<SpokenEvents> m_spoken;
    std::unique_ptr<WindowRouter> m_router;
    std::unique_ptr<CommandCenterController> m_commandCenter;
    std::unique_ptr<StatusItemController> m_statusItem;
    MissingTray m_missingTray;
    TimerHandle m_trayPatience; ///< there while the first panel waits for the tray
    QMetaObject::Connection m_trayPlaced;
};

} // namespace vantle
