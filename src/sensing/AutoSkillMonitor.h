// Auto mode: assigns time to skills by the application in front.
#pragma once

#include "base/Scheduler.h"
#include "platform/FrontmostApp.h"
#include "sensing/AutoRules.h"
#include "sensing/PromptMemory.h"
#include "sensing/RetagBank.h"
#include "tracking/TrackerCore.h"

#include <QObject>

#include <functional>
#include <optional>

namespace vantle {

class IdleSource;
class Preferences;

/// After the user has stayed in an application long enough, it suggests one of three things: to
/// continue the session under the application's skill (a retag), to start a session (an auto
/// start), or to ask what the application is for (a tag prompt). Nothing happens at the switch
/// itself: the next switch cancels a stay, and its conditions are checked at its start and at its
/// end. There is no polling.
///
/// It decides and remembers; the owner carries suggestions out. Applications without an identity
/// and the program's own windows are ignored. Failures show in `rules().persistenceError()` alone.
/// Main thread, the hooks included.
class AutoSkillMonitor final : public QObject {
    Q_OBJECT

public:
    static constexpr double retagDwellSeconds = RetagBank::dwellSeconds;
    static constexpr double retagGraceSeconds = RetagBank::graceSeconds;
    static constexpr double autoStartDwellSeconds = 120; ///< also the limit of idle time at its end
    static constexpr double tagPromptDwellSeconds = 90;  ///< also the limit of idle time at its end
    static constexpr double tagPromptCooldownSeconds = PromptMemory::cooldownSeconds;
    static constexpr double tagPromptGlobalSpacingSeconds = PromptMemory::spacingSeconds;

    /// The services that auto mode uses. All of them must outlive the monitor.
    struct Environment {
        const Clock& clock;
        Scheduler& scheduler;
        SerialQueue& ioQueue; ///< auto mode's own queue, named AutoRules::ioQueueLabel
        const AppPaths& paths;
        const Preferences& preferences;
        SkillList& skills;
        FrontmostApp& frontmostApp;
        IdleSource& idleSource;
        QString ownBundleId; ///< identity of the program's own windows
    };

    /// Stopped until `refreshFromDefaults`, or until the preference changes.
    explicit AutoSkillMonitor(const Environment& environment);
    ~AutoSkillMonitor() override;

    /// The rules that assign applications to skills.
    [[nodiscard]] AutoRules& rules() { return m_rules; }

    /// Starts or stops as `settings::autoMode` says. Later changes of the preference apply without
    /// a call.
    void refreshFromDefaults();
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    /// The user changed the skill of the open session: the application in front does not change it
    /// again before the session ends.
    void noteManualSkillChoice();
    void clearSessionOverrides() { m_sessionOverrides.clear(); }

    /// The user answered the question about the application, or let it expire.
    void noteTagPromptResolved(const QString& bundleId);

    /// The question could not be shown; it may be tried again.
    void forgetPromptOffer(const QString& bundleId) { m_prompts.forgetOffer(bundleId); }
    [[nodiscard]] bool mayOfferCorrectionPrompt(const QString& bundleId) const;

    /// Returns the application in front if the user can be asked about a rule for it: not a
    /// browser, not the program itself. It always has a name.
    [[nodiscard]] std::optional<Application> frontmostAppForCorrection();

    /// Erases memory and file until the next launch.
    void eraseAllData();

    // Hooks, set by the owner, which takes them away at its end. An unset hook is not called.

    std::function<TrackerCore::State()> sessionState;
    std::function<std::optional<QString>()> sessionSkillId;
    /// The application in which the open session began; empty when none is open.
    std::function<std::optional<QString>()> sessionBundleId;

    /// Called while a session runs under another skill. The skill exists.
    std::function<void(const QString& skillId)> onRetagSuggested;
    /// Called while no session is open. The skill exists.
    std::function<void(const QString& skillId)> onAutoStart;
    std::function<void(const QString& bundleId, const QString& appName)> onTagPromptSuggested;

private:
    enum class DwellKind { Retag, AutoStart };
    struct Dwell {
        DwellKind kind = DwellKind::Retag;
        QString bundleId;
        QString skillId;
    };

    void start();
    void stop();

    void handleActivation(const std::optional<Application>& app);
    [[nodiscard]] std::optional<QString> rulingOrSuggestion(const Application& app);
    void considerDwell(const QString& bundleId, const QString& skillId);
    void considerRetag(const QString& bundleId, const QString& skillId);
    void considerTagPrompt(const Application& app);

    void arm(double seconds, Dwell dwell);
    void fire(const Dwell& dwell);
    void fireRetag(const QString& skillId);
    void fireAutoStart(const QString& skillId);
    void fireTagPrompt(const Application& app);

    [[nodiscard]] bool isEnabled() const;
    [[nodiscard]] bool isAutoStartOn() const;
    [[nodiscard]] bool isInFront(const QString& bundleId);
    [[nodiscard]] bool isIdleBelow(double seconds);
    [[nodiscard]] TrackerCore::State currentState() const;
    [[nodiscard]] std::optional<QString> currentSkillId() const;

    Environment m_env;
    AutoRules m_rules;
    bool m_isRunning = false;
    QMetaObject::Connection m_activationObserver; ///< while running
    TimerHandle m_pendingWork;                    ///< of the one stay in progress
    RetagBank m_retags;
    PromptMemory m_prompts;
    /// Applications whose skill the user overruled in this session.
    QSet<QString> m_sessionOverrides;
};

} // namespace vantle
