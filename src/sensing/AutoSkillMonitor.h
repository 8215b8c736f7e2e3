// Auto mode: follows the application in front, and files time by it.
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

/// After the person has stayed in an application long enough, does one of three things: suggests
/// that the session go on under the application's skill (a retag), that one be started (an auto
/// start), or that the person be asked what the application is for (a tag prompt). Nothing happens
/// at the moment of a switch: every stay is cut off by the next switch, and what it needs is
/// checked when it begins and again when it has lasted. Nothing is polled; between switches it
/// sleeps.
///
/// It decides and remembers; what comes of a suggestion is the owner's matter. An application
/// without identity does not exist for it, nor do the program's own windows. Nothing here reports a
/// failure but `rules().persistenceError()`. Main thread, the hooks included.
class AutoSkillMonitor final : public QObject {
    Q_OBJECT

public:
    static constexpr double retagDwellSeconds = RetagBank::dwellSeconds;
    static constexpr double retagGraceSeconds = RetagBank::graceSeconds;
    static constexpr double autoStartDwellSeconds = 120; ///< also the limit of idle time
    static constexpr double tagPromptDwellSeconds = 90;  ///< also the limit of idle time
    static constexpr double tagPromptCooldownSeconds = PromptMemory::cooldownSeconds;
    static constexpr double tagPromptGlobalSpacingSeconds = PromptMemory::spacingSeconds;

    /// What auto mode works with. All of it must outlive the monitor.
    struct Environment {
        const Clock& clock;
        Scheduler& scheduler;
        SerialQueue& ioQueue; ///< of its own, named AutoRules::ioQueueLabel
        const AppPaths& paths;
        const Preferences& preferences;
        SkillList& skills;
        FrontmostApp& frontmostApp;
        IdleSource& idleSource;
        QString ownBundleId; ///< the program's own windows
    };

    /// It does nothing until `refreshFromDefaults`, or until a preference changes.
    explicit AutoSkillMonitor(const Environment& environment);
    ~AutoSkillMonitor() override;

    /// Which application belongs to which skill.
    [[nodiscard]] AutoRules& rules() { return m_rules; }

    /// Starts or stops as `settings::autoMode` says. Follows changes of the preference by itself.
    void refreshFromDefaults();
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    /// The person, not auto mode, changed the skill of the session that goes on: the application in
    /// front does not change it again before the session ends.
    void noteManualSkillChoice();
    void clearSessionOverrides() { m_sessionOverrides.clear(); }

    /// The person answered a question about the application, or let it pass.
    void noteTagPromptResolved(const QString& bundleId);

    /// The question could not be put; it may be tried again.
    void forgetPromptOffer(const QString& bundleId) { m_prompts.forgetOffer(bundleId); }
    [[nodiscard]] bool mayOfferCorrectionPrompt(const QString& bundleId) const;

    /// The application in front, if the person can be asked whether it always counts as a skill:
    /// neither a browser nor one of ours. It always has a name.
    [[nodiscard]] std::optional<Application> frontmostAppForCorrection();

    /// Forgets everything that was learnt, file included, until the next launch.
    void eraseAllData();

    // Set by the owner, which they must hold weakly. One that is not set is not asked.

    std::function<TrackerCore::State()> sessionState;
    std::function<std::optional<QString>()> sessionSkillId;
    /// The application in which the open session began; empty when none is open.
    std::function<std::optional<QString>()> sessionBundleId;

    std::function<void(const QString& skillId)> onRetagSuggested;
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
    TimerHandle m_pendingWork;                    ///< the one stay that is waited for
    RetagBank m_retags;
    PromptMemory m_prompts;
    QSet<QString> m_sessionOverrides; ///< applications whose skill the person overruled
};

} // namespace vantle
