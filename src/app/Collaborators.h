// What the application model needs of the surfaces, the ceremony and auto mode, and no more.
//
// Each class is met only through these operations. The bodies here are those of a collaborator that
// is not there: nothing is shown, no prompt is taken, no application is known. All on the main
// thread; every callback handed over may be called at any later time, or never.
#pragma once

#include "platform/FrontmostApp.h"
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
    virtual void play(CeremonyShow, std::uint32_t /*hexRGB*/,
                      const std::optional<QString>& /*skillName*/) {}
};

/// How the capsule changes skills in place.
struct SkillEditCallbacks {
    std::function<void(const QString& id, const QString& name, std::uint32_t hexRGB)> onUpdate;
    std::function<void(const QString& id)> onDelete;
    std::function<void(const QString& name, std::uint32_t hexRGB)> onAdd;
};

/// The capsule at the top of the screen.
class Notch {
public:
    virtual ~Notch() = default;
    virtual void show(TrackerCore&, const Skill&, const std::vector<Skill>&, bool /*flash*/,
                      std::function<void()> /*onStop*/,
                      std::function<void(const QString&)> /*onPick*/) {}
    virtual void showIdlePrompt(TrackerCore&, const Skill&, const std::vector<Skill>&,
                                bool /*flash*/, std::function<void()> /*onStart*/,
                                std::function<void(const QString&)> /*onPick*/,
                                SkillEditCallbacks /*edit*/) {}
    virtual void retag(const Skill&, bool /*flash*/) {}
    virtual void hide() {}
    virtual void flashSessionStart() {}
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
    virtual void show(const Content&,
                      std::function<void(const std::optional<QString>& note)> /*onClose*/) {}
    /// The last session is out of reach: another one begins, or it was erased.
    virtual void forgetNote() {}
};

/// The notice about a session that the last run left open.
class Recovery {
public:
    virtual ~Recovery() = default;
    virtual void show(const Session&, std::function<void()> /*onDiscard*/,
                      std::function<void()> /*onKeep*/) {}
    /// Takes the notice down, and gives up its place among the cards.
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
    /// What an unknown application is for. False when the question can't be asked now.
    [[nodiscard]] virtual bool show(const QString& /*appName*/, const std::vector<Skill>&,
                                    bool /*isCounting*/, bool /*isBrowser*/,
                                    std::function<void(const Outcome&)> /*onResolve*/) {
        return false;
    }
    /// Whether the application always counts as the skill. False when it can't be asked now.
    [[nodiscard]] virtual bool showCorrection(const QString& /*appName*/, const Skill&,
                                              std::function<void(bool)> /*onResolve*/) {
        return false;
    }
};

/// The short word after a change of skill.
class RetagToast {
public:
    virtual ~RetagToast() = default;
    virtual void show(const QString& /*name*/, std::uint32_t /*color*/, std::int64_t /*seconds*/) {}
};

/// The person's own commands at both ends of a session.
class FocusLink {
public:
    virtual ~FocusLink() = default;
    virtual void sessionStarted() {}
    virtual void sessionEnded() {}
};

/// Auto mode: rules that file time by the application in front.
class AutoSkill {
public:
    virtual ~AutoSkill() = default;

    /// How auto mode sees the open session, and how it answers. Set once by the model.
    struct Hooks {
        std::function<TrackerCore::State()> sessionState;
        std::function<std::optional<QString>()> sessionSkillId;
        std::function<std::optional<QString>()> sessionBundleId;
        std::function<void(const QString& skillId)> onRetagSuggested;
        std::function<void(const QString& skillId)> onAutoStart;
        std::function<void(const QString& bundleId, const QString& appName)> onTagPromptSuggested;
    };
    virtual void setHooks(Hooks) {}

    virtual void refreshFromDefaults() {}
    virtual void clearSessionOverrides() {}
    virtual void noteManualSkillChoice() {}
    [[nodiscard]] virtual std::optional<Application> frontmostAppForCorrection() {
        return std::nullopt;
    }
    [[nodiscard]] virtual std::optional<QString> ruling(const QString& /*bundleId*/) {
        return std::nullopt;
    }
    [[nodiscard]] virtual bool mayOfferCorrectionPrompt(const QString& /*bundleId*/) {
        return false;
    }
    virtual void setRule(const QString& /*bundleId*/, const QString& /*ruling*/) {}
    virtual void forgetPromptOffer(const QString& /*bundleId*/) {}
    virtual void noteTagPromptResolved(const QString& /*bundleId*/) {}
    virtual void removeRules(const QString& /*skillId*/) {}
    virtual void eraseAllData() {}
    virtual void drainPendingIO() {}
    [[nodiscard]] virtual bool isBrowser(const QString& /*bundleId*/, const QString& /*appName*/) {
        return false;
    }
};

/// The ruling that an application counts for nothing.
inline constexpr const char* ignoreRuling = "ignore";

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
    std::unique_ptr<collaborators::FocusLink> focusLink =
        std::make_unique<collaborators::FocusLink>();
    std::unique_ptr<collaborators::AutoSkill> autoSkill =
        std::make_unique<collaborators::AutoSkill>();
};

} // namespace vantle
