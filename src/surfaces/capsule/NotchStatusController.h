// Keeps the capsule at the top of the screen: which form it has, and on which screen it is.
#pragma once

#include "app/Collaborators.h"
#include "surfaces/capsule/NotchCapsule.h"

#include <QObject>

#include <list>
#include <memory>
#include <optional>

namespace vantle {

/// A capsule with its window. To destroy it is to take it off the screen at once. Main thread.
class CapsulePanel {
public:
    virtual ~CapsulePanel() = default;
    [[nodiscard]] virtual NotchCapsule& capsule() = 0;
};

/// Builds a new panel and capsule for every change of form; nothing is updated in place. Without a
/// screen it shows nothing and says nothing. Main thread.
class NotchStatusController final : public QObject, public collaborators::Notch {
    Q_OBJECT

public:
    /// All of it must outlive the controller.
    struct Environment {
        Scheduler& scheduler;
        const Preferences& preferences;
        const ReducedMotion& reducedMotion;
        const Screens& screens;
        /// Raises the panel of a capsule, resting, in front of everything; it keeps the capsule.
        std::function<std::unique_ptr<CapsulePanel>(std::unique_ptr<NotchCapsule>,
                                                    const Placement& placement)>
            raise;
    };

    explicit NotchStatusController(Environment environment);
    ~NotchStatusController() override;

    void show(TrackerCore& tracker, const Skill& skill, const std::vector<Skill>& skills,
              bool flash, std::function<void()> onStop,
              std::function<void(const QString&)> onPick) override;
    void showIdlePrompt(TrackerCore& tracker, const Skill& skill, const std::vector<Skill>& skills,
                        bool flash, std::function<void()> onStart,
                        std::function<void(const QString&)> onPick,
                        collaborators::SkillEditCallbacks edit) override;
    void retag(const Skill& skill, bool flash) override;
    void hide() override;
    void flashSessionStart() override;
    void flashIdleCard() override;

    /// What is on show; null when nothing is.
    [[nodiscard]] NotchCapsule* capsule() const;

private:
    void present(NotchCapsule::Form form);
    void dismiss(bool animated);
    void screensChanged();
    void flash(Seconds hold);

    Environment m_env;
    CapsuleText m_text;
    std::unique_ptr<CapsulePanel> m_panel;
    std::optional<NotchCapsule::Form> m_lastForm; ///< what is on show, to show it again elsewhere
    TimerHandle m_repositionWork;
    std::list<std::unique_ptr<CapsulePanel>> m_leaving; ///< fading away
};

} // namespace vantle
