// Starts and stops sessions, and pauses them while the user is away.
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

/// Why the tracker is told to start or stop.
enum class SessionCause {
    Command,         ///< the user, by a surface
    HotKey,          ///< the user, by the shortcut
    AutoMode,        ///< the application in front
    Split,           ///< the skill changes: the session ends and goes on as another one
    Practice,        ///< the welcome tries it out
    DiscardPractice, ///< the welcome throws its session away
};

/// The one caller of the tracker's start and stop, but for the capsule's stop button. The tracker's
/// callbacks run inside those calls and read the cause of the call, which a scope guard holds.
/// Failures are told in the note. Main thread.
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
        FrontmostApp* frontmostApp = nullptr; ///< null where the desktop can't tell
        AutoSkillMonitor& autoSkill;
        FocusLink& focusLink;
        TrackerCore& tracker;
        ActionNote& note;
        PracticeSessions& practice;
        SessionSurfaces& surfaces;
    };
    explicit SessionFlow(const Environment& environment);
    ~SessionFlow() override;

    /// Watches the user, takes the shortcut, and schedules the offer of a session that the last run
    /// left open, then the idle capsule. Once, at launch.
    void begin();

    // Commands

    /// Starts a session, or stops the open one.
    void toggle(SessionCause cause = SessionCause::Command);
    /// Starts a session that began `minutes` ago, or moves the start of the open one back.
    void startWithBackfill(int minutes);
    /// Adds time by hand, 1 to 960 minutes. Returns true once it is in the log.
    bool quickLog(const QString& skillId, int minutes, const QString& note);
    /// Nothing while a session is open.
    void startPractice();
    /// Ends the practice session without a card. Leaves one that is work alone.
    void discardPractice();

    /// The two halves of a change of skill.
    struct Split {
        std::optional<Session> ended; ///< empty when it could not be saved and goes on
        bool hasStarted = false;      ///< the second half
    };
    /// Ends the open session and goes on under `skill` without a lost second. Reports nothing.
    [[nodiscard]] Split split(const Skill& skill);
    /// After a split without a second half: no session is open any more.
    void closeBrokenSplit();

    /// The one guarded stop of every orderly exit: an open session is logged, the shortcut and the
    /// monitor are given up, and all that is queued for the disk is written. Nothing the second
    /// time.
    void end();
    [[nodiscard]] bool isEnding() const { return m_isEnding; }

    // The skill of the next start

    [[nodiscard]] const QString& selectedSkillId() const { return m_selectedSkillId; }
    /// Chooses it, and remembers the choice for the next launch.
    void choose(const QString& id);
    /// Chooses it for this run only.
    void chooseUnremembered(const QString& id);
    /// Takes the choice of the last run, or the first skill where that one is gone.
    void restoreChoice();

    /// Puts the idle capsule up. Nothing while a session is open.
    void showIdlePrompt();
    /// The same, once the welcome is done.
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
    void onSessionStarted(const Skill& skill);
    void onSessionEnded(const Session& session);
    [[nodiscard]] std::optional<QString> bundleIdInFront() const;

    const Environment m_env;
    IdleMonitor m_idle;
    HotKey m_hotKey;
    SessionCause m_cause = SessionCause::Command; ///< of the tracker's call that runs now
    std::optional<QString> m_bundleId;
    QString m_selectedSkillId;
    bool m_isEnding = false; ///< stays once set
};

} // namespace vantle
