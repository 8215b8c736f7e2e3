// What the application model needs of the surfaces, and no more.
//
// A surface is met only through these operations. The bodies here are those of a surface that is
// not there: nothing is shown and no question is taken. All on the main thread. A callback that is
// handed over may be called at any later time, or never. A surface that can't show what it is told
// says so by its return value, else it fails silently: no session depends on one.
#pragma once

#include "tracking/Session.h"
#include "tracking/Skill.h"
#include "tracking/TrackerCore.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vantle {

/// What the ceremony plays.
struct CeremonyShow {
    enum Kind {
        Full,      ///< a session started by the person
        Quick,     ///< a session started by auto mode
        Collapse,  ///< a session ended
        Milestone, ///< a round number of hours was reached
    };

    constexpr CeremonyShow(Kind k) : kind(k) {} // NOLINT: a kind without hours is a show
    [[nodiscard]] static constexpr CeremonyShow milestone(std::int64_t hours) {
        CeremonyShow show(Milestone);
        show.hours = hours;
        return show;
    }
    friend bool operator==(const CeremonyShow&, const CeremonyShow&) = default;

    Kind kind;
    std::int64_t hours = 0; ///< of a milestone
};

namespace collaborators {

/// The full-screen ceremony.
class Ripple {
public:
    virtual ~Ripple() = default;
    /// Called after the capsule was told of the start or the end of a session, never at a change of
    /// skill. Ends a show that still plays; the name is empty at an end.
    virtual void play(CeremonyShow, std::uint32_t /*hexRGB*/,
                      const std::optional<QString>& /*skillName*/) {}
};

/// How the capsule changes skills in place.
struct SkillEditCallbacks {
    /// A skill gets another name or colour.
    std::function<void(const QString& id, const QString& name, std::uint32_t hexRGB)> onUpdate;
    /// A skill goes, with the rules that name it.
    std::function<void(const QString& id)> onDelete;
    /// There is a new skill.
    std::function<void(const QString& name, std::uint32_t hexRGB)> onAdd;
};

/// The capsule at the top of the screen.
class Notch {
public:
    virtual ~Notch() = default;
    /// Called when a session has started, by the tracker's own call. Follows the tracker, which
    /// outlives the capsule's window, until hide(); flashes at once where no ceremony plays.
    virtual void show(TrackerCore&, const Skill&, const std::vector<Skill>&, bool /*flash*/,
                      std::function<void()> /*onStop*/,
                      std::function<void(const QString&)> /*onPick*/) {}
    /// Called while no session is open: at launch, after a session, and when the skills change.
    /// Replaces an earlier prompt.
    virtual void showIdlePrompt(TrackerCore&, const Skill&, const std::vector<Skill>&,
                                bool /*flash*/, std::function<void()> /*onStart*/,
                                std::function<void(const QString&)> /*onPick*/,
                                SkillEditCallbacks /*edit*/) {}
    /// Called when the open session goes on under another skill or name, with a flash, and when
    /// another skill is chosen for the next start, without one.
    virtual void retag(const Skill&, bool /*flash*/) {}
    /// Called when a session has ended, before showIdlePrompt(). Not at the end of a process whose
    /// screen is gone.
    virtual void hide() {}
    /// Called after the ceremony of a start, if the session is still open.
    virtual void flashSessionStart() {}
    /// Called once in an installation's life, after the panel was opened without a session.
    virtual void flashIdleCard() {}
};

/// The card after a session.
class StopSummary {
public:
    virtual ~StopSummary() = default;
    struct Content {
        Session session;
        std::int64_t newHours = 0;     ///< dots that it added to the wall
        std::int64_t carrySeconds = 0; ///< towards the next dot
        bool isFirstSession = false;
        bool showHotkeyHint = false;
        bool spotlightNote = false;
    };
    /// Called when a session has ended and was logged, also a practice session that was deleted
    /// again. `onClose` gets the note, or nothing when none was written.
    virtual void show(const Content&,
                      std::function<void(const std::optional<QString>& note)> /*onClose*/) {}
    /// Called when the last session is out of reach: another one begins, or it was erased.
    virtual void forgetNote() {}
};

/// The notice about a session that the last run left open.
class Recovery {
public:
    virtual ~Recovery() = default;
    /// Called once, after launch. Waits for the corner while another card has it; without an answer
    /// the next launch offers the session again.
    virtual void show(const Session&, std::function<void()> /*onDiscard*/,
                      std::function<void()> /*onKeep*/) {}
    /// Called before all data is erased. Takes the notice down, and gives up its place among the
    /// cards.
    virtual void hideForEviction() {}
};

/// The questions about an application.
class TagPrompt {
public:
    virtual ~TagPrompt() = default;
    struct Outcome {
        enum class Kind { Tagged, Ignore, Dismiss };
        Kind kind = Kind::Dismiss;
        QString skillId; ///< when Tagged
    };
    /// Asks what an unknown application is for. Called when auto mode suggests it. Returns false
    /// when the question can't be asked now; `onResolve` is not called then.
    [[nodiscard]] virtual bool show(const QString& /*appName*/, const std::vector<Skill>&,
                                    bool /*isCounting*/, bool /*isBrowser*/,
                                    std::function<void(const Outcome&)> /*onResolve*/) {
        return false;
    }
    /// Asks whether the application always counts as the skill. Called when the user has split the
    /// session by hand. Returns false as show().
    [[nodiscard]] virtual bool showCorrection(const QString& /*appName*/, const Skill&,
                                              std::function<void(bool)> /*onResolve*/) {
        return false;
    }
};

/// The short word after a change of skill.
class RetagToast {
public:
    virtual ~RetagToast() = default;
    /// Called when the user has split the session by hand, with what was logged of it.
    /// Needs no place in the corner.
    virtual void show(const QString& /*name*/, std::uint32_t /*color*/, std::int64_t /*seconds*/) {}
};

} // namespace collaborators

/// All of them, owned by the model. One that is not replaced is not there.
struct Collaborators {
    std::unique_ptr<collaborators::Ripple> ripple = std::make_unique<collaborators::Ripple>();
    std::unique_ptr<collaborators::Notch> notch = std::make_unique<collaborators::Notch>();
    std::unique_ptr<collaborators::StopSummary> stopSummary =
        std::make_unique<collaborators::StopSummary>();
    std::unique_ptr<collaborators::Recovery> recovery = std::make_unique<collaborators::Recovery>();
    std::unique_ptr<collaborators::TagPrompt> tagPrompt =
        std::make_unique<collaborators::TagPrompt>();
    std::unique_ptr<collaborators::RetagToast> retagToast =
        std::make_unique<collaborators::RetagToast>();
};

} // namespace vantle
