// The public face of the application model: commands in, published state out.
#pragma once

#include "app/ActionNote.h"
#include "app/AutoModeAnswers.h"
#include "app/DataErase.h"
#include "app/PanelState.h"
#include "app/PracticeSessions.h"
#include "app/SessionFlow.h"
#include "app/SessionSurfaces.h"
#include "app/SkillCommands.h"
#include "app/TopRightCardSlot.h"
#include "tracking/SkillList.h"

namespace vantle {

/// Owns the parts that do the work and passes each call to one of them; the part's header describes
/// effect and failure. A class that needs one or two parts takes those instead of this one. Every
/// failure is shown in `lastActionNote`. Main thread.
class AppModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString selectedSkillId READ selectedSkillId NOTIFY selectedSkillIdChanged FINAL)
    Q_PROPERTY(QString lastActionNote READ lastActionNoteText NOTIFY lastActionNoteChanged FINAL)
    Q_PROPERTY(bool wrappedReady READ wrappedReady NOTIFY wrappedReadyChanged FINAL)
    Q_PROPERTY(int backfillCoverageMinutes READ backfillCoverageMinutes NOTIFY
                   backfillCoverageMinutesChanged FINAL)
    Q_PROPERTY(bool pulsePrimaryOnce READ pulsePrimaryOnce WRITE setPulsePrimaryOnce NOTIFY
                   pulsePrimaryOnceChanged FINAL)

public:
    using SkillSelectionOrigin = SkillCommands::Origin;

    /// The services that the model uses. All of them must outlive the model.
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
        TopRightCardSlot& cardSlot; ///< arbitrates the corner among the cards
        AutoSkillMonitor& autoSkill;
        FocusLink& focusLink;
        FrontmostApp& frontmostApp;
        std::function<Calendar()> calendar;      ///< returns the user's current calendar
        std::function<void()> terminate = [] {}; ///< ends the process once the model has stopped
    };

    /// Tightens file permissions, loads the skills, starts the monitors, registers the shortcut,
    /// and schedules the offer of a session that the last run left open.
    AppModel(const Environment& environment, Collaborators collaborators);
    ~AppModel() override;

    // Commands

    void toggleVantle() { m_flow.toggle(); }
    void startWithBackfill(int minutes) { m_flow.startWithBackfill(minutes); }
    bool quickLog(const QString& skillId, int minutes, const QString& note) {
        return m_flow.quickLog(skillId, minutes, note);
    }
    void selectSkill(const QString& id, SkillSelectionOrigin origin) {
        m_skills.select(id, origin);
    }
    void addSkill(const QString& name, std::uint32_t hexRGB) { m_skills.add(name, hexRGB); }
    void updateSkill(const QString& id, const QString& name, std::uint32_t hexRGB) {
        m_skills.update(id, name, hexRGB);
    }
    void deleteSkill(const QString& id) { m_skills.remove(id); }
    std::optional<QString> eraseEverything() { return m_erase.run(); }

    void startPractice() { m_flow.startPractice(); }
    void markSessionAsPractice() { m_practice.markOpenSession(); }
    [[nodiscard]] bool isPractice() const { return m_practice.isOpen(); }
    void discardPracticeSession() { m_flow.discardPractice(); }
    [[nodiscard]] bool needsWelcome() const { return m_practice.needsWelcome(); }
    void markWelcomeDone();

    /// Called each time the panel opens. Keeps `lastActionNote`: the offer to recover a session
    /// must not vanish because the panel opens.
    void refreshPanelState() { m_panel.refresh(); }
    void report(const QString& text) { m_note.report(text); }
    void ensureIdleNotch() { m_flow.ensureIdlePrompt(); }
    void flashIdleNotchIntroIfNeeded() { m_surfaces.flashIntroductionIfNeeded(); }

    /// Stops as prepareForTermination() does, then ends the process.
    void quit();
    /// The guarded stop of every orderly exit. Does nothing the second time.
    void prepareForTermination() { m_flow.end(); }
    /// Like prepareForTermination(), for a toolkit that is half gone: no surface is told and no
    /// view gets a change signal.
    void prepareForTerminationUnseen();

    // Set at launch
    std::function<void()> showCommandCenter;
    std::function<void(bool)> highlightStatusItem;

    // Parts and state

    [[nodiscard]] TrackerCore& tracker() { return m_tracker; }
    [[nodiscard]] IdleMonitor& idle() { return m_flow.idle(); }
    [[nodiscard]] HotKey& hotKey() { return m_flow.hotKey(); }
    [[nodiscard]] SessionFlow& flow() { return m_flow; }
    [[nodiscard]] ActionNote& actionNote() { return m_note; }
    [[nodiscard]] PanelState& panelState() { return m_panel; }
    [[nodiscard]] const QString& selectedSkillId() const { return m_flow.selectedSkillId(); }
    [[nodiscard]] const std::vector<Skill>& skills() const { return m_env.skills.all(); }
    [[nodiscard]] const std::optional<QString>& lastActionNote() const { return m_note.text(); }
    [[nodiscard]] const std::optional<QString>& sessionBundleId() const {
        return m_flow.sessionBundleId();
    }
    [[nodiscard]] bool wrappedReady() const { return m_panel.wrappedReady(); }
    [[nodiscard]] int backfillCoverageMinutes() const { return m_panel.backfillCoverageMinutes(); }
    [[nodiscard]] bool pulsePrimaryOnce() const { return m_panel.pulsePrimaryOnce(); }
    void setPulsePrimaryOnce(bool pulse) { m_panel.setPulsePrimaryOnce(pulse); }
    [[nodiscard]] bool isQuitting() const { return m_flow.isEnding(); }
    /// What the user is building; empty when not given.
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
    void publish();
    [[nodiscard]] QString lastActionNoteText() const { return m_note.text().value_or(QString()); }

    const Environment m_env;
    TrackerCore m_tracker;
    ActionNote m_note;
    PracticeSessions m_practice;
    SessionSurfaces m_surfaces;
    SessionFlow m_flow;
    SkillCommands m_skills;
    AutoModeAnswers m_autoMode;
    PanelState m_panel;
    DataErase m_erase;
};

} // namespace vantle
