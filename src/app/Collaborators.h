// The operations that the application model needs from the surfaces.
//
// The model reaches a surface only through these classes. Their own bodies are those of a missing
// surface: they show nothing and accept no question. Main thread. The surface may call a callback
// at any later time, or never. A surface that cannot show something returns false where the
// operation has a result, and is silent elsewhere: no session depends on a surface.
#pragma once

#include "tracking/Session.h"
#include "tracking/Skill.h"
#include "tracking/TrackerCore.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vantle {

/// The kind of ceremony to play.
struct CeremonyShow {
    enum Kind {
        Full,      ///< the user started a session
        Quick,     ///< auto mode started a session
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
    std::int64_t hours = 0; ///< of a milestone, else 0
};

namespace collaborators {

/// The full-screen ceremony.
class Ripple {
public:
    virtual ~Ripple() = default;
    /// Plays `show` in the skill's colour (0xRRGGBB) and cuts off a show that still plays. Called
    /// after the capsule has the start or the end of a session, not at a change of skill. The name
    /// is empty at an end.
    virtual void play(CeremonyShow, std::uint32_t /*hexRGB*/,
                      const std::optional<QString>& /*skillName*/) {}
};

/// The edits of skills that the capsule offers.
struct SkillEditCallbacks {
    /// Renames or recolours a skill.
    std::function<void(const QString& id, const QString& name, std::uint32_t hexRGB)> onUpdate;
    /// Deletes a skill and the rules that name it.
    std::function<void(const QString& id)> onDelete;
    /// Adds a skill.
    std::function<void(const QString& name, std::uint32_t hexRGB)> onAdd;
};

/// The capsule at the top of the screen.
class Notch {
public:
    virtual ~Notch() = default;
    /// Shows the running session. Called inside the tracker's start. The capsule follows the
    /// tracker, which outlives it, until hide(). `flash` opens the capsule at once, where no
    /// ceremony plays.
    virtual void show(TrackerCore&, const Skill&, const std::vector<Skill>&, bool /*flash*/,
                      std::function<void()> /*onStop*/,
                      std::function<void(const QString&)> /*onPick*/) {}
    /// Shows the prompt to start a session, in place of an earlier prompt. Called while no session
    /// is open: at launch, after a session, and when the skills change.
    virtual void showIdlePrompt(TrackerCore&, const Skill&, const std::vector<Skill>&,
                                bool /*flash*/, std::function<void()> /*onStart*/,
                                std::function<void(const QString&)> /*onPick*/,
                                SkillEditCallbacks /*edit*/) {}
    /// Shows another skill. Called with a flash when the open session continues under another skill
    /// or name, and without one when the user chooses the skill of the next start.
    virtual void retag(const Skill&, bool /*flash*/) {}
    /// Takes the running session off the capsule. Called when a session has ended, before
    /// showIdlePrompt(); not when the display is already lost.
    virtual void hide() {}
    /// Opens the capsule briefly. Called after the ceremony of a start, if the session is still
    /// open.
    virtual void flashSessionStart() {}
    /// Opens the idle capsule briefly, as its introduction. Called once per installation, after the
    /// panel was opened without a session.
    virtual void flashIdleCard() {}
};

/// The card after a session.
class StopSummary {
public:
    virtual ~StopSummary() = default;
    struct Content {
        Session session;
        std::int64_t newHours = 0;     ///< dots that the session added to the wall
        std::int64_t carrySeconds = 0; ///< progress towards the next dot
        bool isFirstSession = false;
        bool showHotkeyHint = false;
        bool spotlightNote = false;
    };
    /// Shows the card. Called after a session was logged, also for a practice session whose record
    /// is deleted again. `onClose` gets the note; empty when the user wrote none.
    virtual void show(const Content&,
                      std::function<void(const std::optional<QString>& note)> /*onClose*/) {}
    /// Stops accepting a note for the last session. Called when another session begins, or when the
    /// last one was erased.
    virtual void forgetNote() {}
};

/// The notice about a session that the last run left open.
class Recovery {
public:
    virtual ~Recovery() = default;
    /// Shows the notice, or queues it while another card holds the corner. Called once, after
    /// launch. If the user does not answer, the next launch offers the session again.
    virtual void show(const Session&, std::function<void()> /*onDiscard*/,
                      std::function<void()> /*onKeep*/) {}
    /// Removes the notice and its place in the queue for the corner. Called before all data is
    /// erased.
    virtual void hideForEviction() {}
};

/// The card that asks about an application.
class TagPrompt {
public:
    virtual ~TagPrompt() = default;
    struct Outcome {
        enum class Kind { Tagged, Ignore, Dismiss };
        Kind kind = Kind::Dismiss;
        QString skillId; ///< when Tagged
    };
    /// Asks which skill an unknown application belongs to. Called when auto mode suggests it.
    /// Returns false when the card cannot ask now; then it never calls `onResolve`.
    [[nodiscard]] virtual bool show(const QString& /*appName*/, const std::vector<Skill>&,
                                    bool /*isCounting*/, bool /*isBrowser*/,
                                    std::function<void(const Outcome&)> /*onResolve*/) {
        return false;
    }
    /// Asks whether the application always counts as the skill. Called after the user split the
    /// session. Returns false as show() does.
    [[nodiscard]] virtual bool showCorrection(const QString& /*appName*/, const Skill&,
                                              std::function<void(bool)> /*onResolve*/) {
        return false;
    }
};

/// The toast after a change of skill.
class RetagToast {
public:
    virtual ~RetagToast() = default;
    /// Shows the time that was logged before the change. Called when the user split the session.
    /// Does not need the corner.
    virtual void show(const QString& /*name*/, std::uint32_t /*color*/, std::int64_t /*seconds*/) {}
};

} // namespace collaborators

/// All surfaces, owned by the model. A member that is not replaced stands for a missing surface.
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
