// The one object that coordinates everything: it turns the person's commands into calls of the
// tracker, and what the tracker does into surfaces.
#pragma once

#include "app/Collaborators.h"
#include "app/TopRightCardSlot.h"
#include "base/Calendar.h"
#include "sensing/HotKey.h"
#include "sensing/IdleMonitor.h"
#include "tracking/TrackerCore.h"

#include <QObject>

#include <functional>
#include <list>

namespace vantle {

class ReducedMotion;

/// Surfaces call the commands and watch the properties here and on the tracker; they write no
/// files. Every failure ends in `lastActionNote`, where the tracker's own words about storage win
/// over the general ones. Main thread only.
class AppModel final : public QObject {
    Q_OBJECT
    /// Skill of the next start.
    Q_PROPERTY(QString selectedSkillId READ selectedSkillId NOTIFY selectedSkillIdChanged FINAL)
    /// The one-line status of the last command; empty when there is none.
    Q_PROPERTY(QString lastActionNote READ lastActionNoteText NOTIFY lastActionNoteChanged FINAL)
    /// A weekly review is due. As of the last refreshPanelState().
    Q_PROPERTY(bool wrappedReady READ wrappedReady NOTIFY wrappedReadyChanged FINAL)
    /// How many minutes back presence can be confirmed. As of the last refreshPanelState().
    Q_PROPERTY(int backfillCoverageMinutes READ backfillCoverageMinutes NOTIFY
                   backfillCoverageMinutesChanged FINAL)
    /// A surface asks the primary button to pulse once.
    Q_PROPERTY(bool pulsePrimaryOnce READ pulsePrimaryOnce WRITE setPulsePrimaryOnce NOTIFY
                   pulsePrimaryOnceChanged FINAL)

public:
    /// Who chose a skill.
    enum class SkillSelectionOrigin { Human, Auto };

    /// What the model works with. All of it must outlive the model.
    struct Environment {
        const Clock& clock;
        Scheduler& scheduler;
        SerialQueue& ioQueue;
        const AppPaths& paths;
        Preferences& preferences;
        SkillList& skills;
        NotificationCenter& notifications;
        IdleSource& idleSource;
        ScreenPower& screenPower;
        HotKeyPort& hotKeyPort;
        const ReducedMotion& reducedMotion;
        TopRightCardSlot& cardSlot;           ///< which its cards ask for the corner
        FrontmostApp* frontmostApp = nullptr; ///< null where the desktop can't tell
        std::function<Calendar()> calendar;   ///< the person's calendar at the moment
        std::function<void()> terminate = {}; ///< ends the process once the model has stopped
    };

    /// Tightens permissions, loads the skills, starts the monitors, takes the shortcut, and
    /// schedules the offer of a session that the last run left open.
    AppModel(const Environment& environment, Collaborators collaborators);
    ~AppModel() override;

    // Commands

    /// Starts a session, or stops the open one.
    void toggleVantle();

    /// Chooses the skill. During a session under another one this splits it into two records.
    void selectSkill(const QString& id, SkillSelectionOrigin origin);

    void addSkill(const QString& name, std::uint32_t hexRGB);
    // By value: the caller's id may stand in the list that these replace.
    void updateSkill(QString id, const QString& name, std::uint32_t hexRGB);
    void deleteSkill(QString id);

    /// Starts a session that began `minutes` ago, or moves the start of the open one back.
    void startWithBackfill(int minutes);

    /// Adds time by hand, 1 to 960 minutes. Whether it is in the log.
    bool quickLog(const QString& skillId, int minutes, const QString& note);

    /// Erases all data and preferences. Empty on full success, else what the person is told.
    std::optional<QString> eraseEverything();

    /// Starts a session as practice: neither it nor what it is split into stays in the log. Nothing
    /// while a session is open.
    void startPractice();
    /// Makes the open session practice. Nothing once the welcome is done: from then on only what
    /// `startPractice` starts is practice, however a session comes about.
    void markSessionAsPractice();
    /// Whether the open session will not stay in the log. Before the welcome is done none does.
    [[nodiscard]] bool isPractice() const;
    /// Ends the practice session without a word. Leaves one that is work alone.
    void discardPracticeSession();
    void markWelcomeDone();

    /// Works out what the panel shows; called each time it opens. Leaves `lastActionNote` alone: an
    /// offer to recover a session must not vanish because the panel opens.
    void refreshPanelState();

    /// Tells the person something in `lastActionNote`, where the tracker's own words about storage
    /// win over it.
    void report(const QString& text);

    /// Puts the idle capsule up, when the welcome is done and no session is open.
    void ensureIdleNotch();

    /// Plays the capsule's introduction, once in an installation's life.
    void flashIdleNotchIntroIfNeeded();

    // The end

    /// Stops as prepareForTermination() does, then ends the process.
    void quit();

    /// The one guarded stop of every orderly exit: an open session is logged, the shortcut and the
    /// monitor are given up, and all that is queued for the disk is written. Does nothing the
    /// second time.
    void prepareForTermination();
    /// The same where the toolkit is half gone: no surface is told, and no view hears of a change.
    void prepareForTerminationUnseen();

    // Set at launch

    std::function<void()> showCommandCenter;
    std::function<void(bool)> highlightStatusItem;

    // State

    [[nodiscard]] TrackerCore& tracker() { return m_tracker; }
    [[nodiscard]] IdleMonitor& idle() { return m_idle; }
    [[nodiscard]] HotKey& hotKey() { return m_hotKey; }
    [[nodiscard]] Collaborators& collaborators() { return m_collaborators; }

    [[nodiscard]] const QString& selectedSkillId() const { return m_selectedSkillId; }
    [[nodiscard]] const std::vector<Skill>& skills() const { return m_skills; }
    [[nodiscard]] const std::optional<QString>& lastActionNote() const { return m_lastActionNote; }
    [[nodiscard]] const std::optional<QString>& sessionBundleId() const {
        return m_sessionBundleId;
    }
    [[nodiscard]] bool wrappedReady() const { return m_wrappedReady; }
    [[nodiscard]] int backfillCoverageMinutes() const { return m_backfillCoverageMinutes; }
    [[nodiscard]] bool pulsePrimaryOnce() const { return m_pulsePrimaryOnce; }
    void setPulsePrimaryOnce(bool pulse);
    [[nodiscard]] bool isQuitting() const { return m_isQuitting; }

    /// Whether the welcome still has to be walked through.
    [[nodiscard]] bool needsWelcome() const;

    /// What the person is building; empty when they didn't say.
    [[nodiscard]] std::optional<QString> projectName() const;
    void setProjectName(const QString& name);

Q_SIGNALS:
    void selectedSkillIdChanged();
    void skillsChanged();
    void lastActionNoteChanged();
    void wrappedReadyChanged();
    void backfillCoverageMinutesChanged();
    void pulsePrimaryOnceChanged();

private:
    void wireIdle();
    void wireTracker();
    void wireAutoSkill();
    void onHotKeyPressed();

    void onSessionStarted(const Skill& skill, Date startedAt);
    void onSessionEnded(const Session& session);
    void showStopSummary(const Session& session, bool isPractice);
    void recoverAndNotify(const OpenSessionMarker& marker);
    void showIdleNotchPrompt(bool flash);

    void splitSession(const QString& id, SkillSelectionOrigin origin, const QString& previousId);
    void offerRuleFromCorrection(const QString& chosenSkillId);
    void suggestRetag(const QString& skillId);
    void autoStart(const QString& skillId);
    void askForTag(const QString& bundleId, const QString& appName);
    void resolveTag(const QString& bundleId, const collaborators::TagPrompt::Outcome& outcome);

    void select(const QString& id);
    void publishSkills();
    void setLastActionNote(std::optional<QString> note);
    /// Returns whether the file of skills could not be read, which refuses every change to them.
    bool reportUnreadableSkills();
    void afterDelay(Seconds delay, std::function<void()> work);
    [[nodiscard]] bool isIdle() const { return m_tracker.state() == TrackerCore::State::Idle; }
    [[nodiscard]] bool isOnboarded() const { return !needsWelcome(); }
    [[nodiscard]] QString lastActionNoteText() const {
        return m_lastActionNote.value_or(QString());
    }

    Environment m_env;
    Collaborators m_collaborators;
    TrackerCore m_tracker;
    IdleMonitor m_idle;
    HotKey m_hotKey;

    std::optional<QString> m_sessionBundleId; ///< application in front when the session started
    QString m_selectedSkillId;
    std::vector<Skill> m_skills; ///< mirror of the list, for surfaces
    std::optional<QString> m_lastActionNote;
    bool m_wrappedReady = false;
    /// Whether the week that starts then holds a review; forgotten when the log changes.
    std::optional<std::pair<Date, bool>> m_reviewOfWeek;
    int m_backfillCoverageMinutes = 0;
    bool m_pulsePrimaryOnce = false;

    // The context of the present command, read by the tracker's callbacks, which run inside it.
    bool m_isQuitting = false; ///< stays once set
    bool m_stopViaHotkey = false;
    bool m_isAutoStarting = false;
    bool m_isRetagging = false;
    bool m_isStartingPractice = false;
    bool m_isDiscardingPractice = false;
    bool m_isPracticeMarked = false; ///< of the open session
    bool m_hasSurfaces = true;       ///< that can still be told

    std::list<TimerHandle> m_delayedWork;
};

} // namespace vantle
