// The flow of sessions: start, stop, split, and pauses while away.
#pragma once

#include "sensing/HotKey.h"
#include "sensing/IdleMonitor.h"
#include "tracking/TrackerCore.h"

#include <QObject>

#include <optional>

namespace vantle {

class ActionNote;
class AutoSkillMonitor;
class FocusLink;
class FrontmostApp;
class PracticeSessions;
class SessionSurfaces;
class SkillList;

/// The reason for a start or a stop.
enum class SessionCause {
    Command,         ///< the user, on a surface
    HotKey,          ///< the user, with the shortcut
    AutoMode,        ///< the application in front changed
    Split,           ///< the skill changed: the session ends and continues as a new one
    Practice,        ///< the welcome's trial session
    DiscardPractice, ///< the welcome discards its session
};

/// The only caller of the tracker's start and stop, except for the capsule's stop button. The
/// tracker runs its callbacks inside those calls, and the callbacks read the cause, which a scope
/// guard holds. Failures are shown in the note. Main thread.
class SessionFlow final : public QObject {
    Q_OBJECT

public:
    /// All of it must outlive the flow.
    struct Environment {
        const Clock& clock;
        Scheduler& scheduler;
        Preferences& preferences;
        SkillList& skills;
        IdleSource& idleSource;
        ScreenPower& screenPower;
        HotKeyPort& hotKeyPort;
        FrontmostApp& frontmostApp;
        AutoSkillMonitor& autoSkill;
        FocusLink& focusLink;
        TrackerCore& tracker;
        ActionNote& note;
        PracticeSessions& practice;
        SessionSurfaces& surfaces;
    };
    explicit SessionFlow(const Environment& environment);
    ~SessionFlow() override;

    /// Starts the idle monitor, registers the shortcut, and schedules first the offer of a session
    /// that the last run left open, then the idle capsule. Called once, at launch.
    void begin();

    // Commands

    /// Starts a session, or stops the open one.
    void toggle(SessionCause cause = SessionCause::Command);
    /// Starts a session that began `minutes` ago, or moves the start of the open one back.
    void startWithBackfill(int minutes);
    /// Adds time by hand, 1 to 960 minutes. Returns true once it is in the log.
    bool quickLog(const QString& skillId, int minutes, const QString& note);
    /// Starts a practice session. Has no effect while a session is open.
    void startPractice();
    /// Ends the practice session without a card. Leaves a session that is work running.
    void discardPractice();

    /// The two sessions of a change of skill.
    struct Split {
        /// Empty when its record could not be saved; then the session continues.
        std::optional<Session> ended;
        bool hasStarted = false; ///< whether the second session is open
    };
    /// Ends the open session and continues under `skill` without losing a second. Reports nothing.
    [[nodiscard]] Split split(const Skill& skill);
    /// Cleans up after a split whose second session did not start: no session is open.
    void closeBrokenSplit();

    /// The guarded stop of every orderly exit: logs an open session, releases shortcut and monitor,
    /// and waits until all queued writes are on disk. Has no effect the second time.
    void end();
    [[nodiscard]] bool isEnding() const { return m_isEnding; }

    // The skill of the next start

    [[nodiscard]] const QString& selectedSkillId() const { return m_selectedSkillId; }
    /// Selects the skill and saves the choice for the next launch.
    void choose(const QString& id);
    /// Selects the skill for this run only.
    void chooseUnremembered(const QString& id);
    /// Selects the skill of the last run, or the first one when that is gone.
    void restoreChoice();

    /// Shows the idle capsule. Has no effect while a session is open.
    void showIdlePrompt();
    /// Shows the idle capsule once the welcome is done.
    void ensureIdlePrompt();

    [[nodiscard]] TrackerCore& tracker() const { return m_env.tracker; }
    [[nodiscard]] IdleMonitor& idle() { return m_idle; }
    [[nodiscard]] HotKey& hotKey() { return m_hotKey; }
    [[nodiscard]] bool isIdle() const { return m_env.tracker.state() == TrackerCore::State::Idle; }
    /// The application in front when the session started; empty while none is open.
    [[nodiscard]] const std::optional<QString>& sessionBundleId() const { return m_bundleId; }
    void setSessionBundleId(const QString& bundleId) { m_bundleId = bundleId; }

Q_SIGNALS:
    void selectedSkillIdChanged();

private:
    void wireIdle();
    void onHotKeyPressed();
    [[nodiscard]] std::optional<int> start(int backfillMinutes);
    void onSessionStarted(const Skill& skill);
    void onSessionEnded(const Session& session);
    [[nodiscard]] std::optional<QString> bundleIdInFront() const;

    const Environment m_env;
    IdleMonitor m_idle;
    HotKey m_hotKey;
    SessionCause m_cause = SessionCause::Command; ///< of the tracker call that runs now
    std::optional<QString> m_bundleId;
    QString m_selectedSkillId;
    bool m_isEnding = false; ///< never reset
};

} // namespace vantle
