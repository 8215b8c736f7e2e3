// The controller of the capsule: its form and its screen.
#pragma once

#include "app/Collaborators.h"
#include "surfaces/capsule/NotchCapsule.h"

#include <QObject>

#include <list>
#include <memory>
#include <optional>

namespace vantle {

/// A capsule with its window. Destroying it removes it from the screen immediately. Main thread.
class CapsulePanel {
public:
    virtual ~CapsulePanel() = default;
    [[nodiscard]] virtual NotchCapsule& capsule() = 0;
};

/// Builds a new panel and capsule for each change of form, without updating in place. Shows nothing
/// without a screen. Main thread.
class NotchStatusController final : public QObject, public collaborators::Notch {
    Q_OBJECT

public:
    /// All of it must outlive the controller.
    struct Environment {
        Scheduler& scheduler;
        const Preferences& preferences;
        const ReducedMotion& reducedMotion;
        const Screens& screens;
        /// Shows a capsule's panel, resting, above other windows; the panel owns the capsule.
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

    /// The visible capsule; null when there is none.
    [[nodiscard]] NotchCapsule* capsule() const;

private:
    void present(NotchCapsule::Form form);
    void dismiss(bool animated);
    void screensChanged();
    void flash(Seconds hold);

    Environment m_env;
    /// Made for the first capsule: its typefaces load fontconfig, which the tray item should not
    /// wait for.
    std::optional<CapsuleText> m_text;
    std::unique_ptr<CapsulePanel> m_panel;
    /// What is shown, to rebuild it on another screen.
    std::optional<NotchCapsule::Form> m_lastForm;
    TimerHandle m_repositionWork;
    std::list<std::unique_ptr<CapsulePanel>> m_leaving; ///< fading out
};

} // namespace vantle
