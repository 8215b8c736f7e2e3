// The events of a session, passed on to capsule, ceremony and cards.
#pragma once

#include "app/Collaborators.h"
#include "base/Scheduler.h"

#include <QObject>

#include <functional>
#include <list>
#include <utility>

namespace vantle {

class ActionNote;
class Clock;
class Preferences;
class ReducedMotion;
class SkillList;
class TopRightCardSlot;

/// Decides what to tell each surface. Callbacks that surfaces keep hold this object weakly. Main
/// thread.
class SessionSurfaces final : public QObject {
    Q_OBJECT

public:
    /// All of it must outlive this object.
    struct Environment {
        const Clock& clock;
        Scheduler& scheduler;
        Preferences& preferences;
        SkillList& skills;
        const ReducedMotion& reducedMotion;
        TopRightCardSlot& cardSlot;
        TrackerCore& tracker;
        ActionNote& note;
    };
    /// The commands that the capsule offers. Set once by the owner, before anything is shown.
    struct Commands {
        std::function<void()> toggle;
        std::function<void(const QString& skillId)> selectSkill;
        collaborators::SkillEditCallbacks edit;
    };

    SessionSurfaces(const Environment& environment, Collaborators collaborators);
    ~SessionSurfaces() override;
    void setCommands(Commands commands) { m_commands = std::move(commands); }

    [[nodiscard]] Collaborators& collaborators() { return m_collaborators; }

    // The session

    /// The last session can no longer take a note.
    void forgetLastSession() { m_collaborators.stopSummary->forgetNote(); }
    void showSession(const Skill& skill, bool byAutoMode);
    /// The session continues under another skill or name; no ceremony plays.
    void showNewSkill(const Skill& skill) { m_collaborators.notch->retag(skill, true); }
    /// Tells capsule and ceremony that `session` ended. The card follows by showSummary().
    void showEnd(const Session& session);
    /// `suppressHint` leaves out the hint at the shortcut.
    void showSummary(const Session& session, bool isPractice, bool suppressHint);
    /// Shows how much time the change of skill logged under the previous skill.
    void showSavedTime(const Session& ended);

    // Between sessions

    /// Shows the idle capsule for a start under `next`. Has no effect while a session is open.
    void showIdlePrompt(const Skill& next);
    /// The user chose another skill for the next start.
    void showChoice(const Skill& next) { m_collaborators.notch->retag(next, false); }
    /// Plays the capsule's introduction, once per installation.
    void flashIntroductionIfNeeded();
    /// Offers the session that the last run left open. Has no effect when there is nothing to
    /// recover.
    void offerRecovery(const OpenSessionMarker& marker);

    // The end

    /// Removes the cards that refer to data about to be erased.
    void dropOffers();
    /// The toolkit is half gone: no surface is told of the session's end.
    void abandon() { m_isAbandoned = true; }

Q_SIGNALS:
    /// The capsule's introduction plays.
    void introduced();

private:
    void afterDelay(Seconds delay, std::function<void()> work);
    [[nodiscard]] bool isIdle() const;

    const Environment m_env;
    Collaborators m_collaborators;
    Commands m_commands;
    bool m_isAbandoned = false;
    std::list<TimerHandle> m_delayedWork;
};

} // namespace vantle
