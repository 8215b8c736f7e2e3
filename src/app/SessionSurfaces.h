// The capsule, the ceremony and the cards, told what happens to sessions.
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

/// Decides what each surface is told; how it looks is the surface's matter. Callbacks that surfaces
/// keep hold this object weakly. Main thread.
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
    /// What the user can do in the capsule. Set once by the owner, before anything is shown.
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

    /// The last session's note is out of reach from now on.
    void forgetLastSession() { m_collaborators.stopSummary->forgetNote(); }
    void showSession(const Skill& skill, bool byAutoMode);
    /// The session goes on under another skill or name: no ceremony.
    void showNewSkill(const Skill& skill) { m_collaborators.notch->retag(skill, true); }
    /// `session` has ended: capsule and ceremony say so, the card follows by showSummary().
    void showEnd(const Session& session);
    /// `suppressHint`: the user needs no hint at the shortcut now.
    void showSummary(const Session& session, bool isPractice, bool suppressHint);
    /// Names the time that a change of skill saved under the skill before.
    void showSavedTime(const Session& ended);

    // Between sessions

    /// Puts the idle capsule up for a start under `next`. Nothing while a session is open.
    void showIdlePrompt(const Skill& next);
    /// Another skill was chosen for the next start.
    void showChoice(const Skill& next) { m_collaborators.notch->retag(next, false); }
    /// Plays the capsule's introduction, once in an installation's life.
    void flashIntroductionIfNeeded();
    /// Offers the session that the last run left open. Nothing when it holds none.
    void offerRecovery(const OpenSessionMarker& marker);

    // The end

    /// Takes down what refers to data that is about to be erased.
    void dropOffers();
    /// The toolkit is half gone: no surface is told of the end of the session.
    void abandon() { m_isAbandoned = true; }

Q_SIGNALS:
    /// The introduction of the capsule plays.
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
