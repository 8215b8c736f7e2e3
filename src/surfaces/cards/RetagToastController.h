// The controller of the toast after a change of skill.
#pragma once

#include "app/Collaborators.h"
#include "surfaces/cards/CornerCard.h"
#include "tracking/DurationStyle.h"

#include <memory>

namespace vantle {

/// Formats the time just logged: "12 min" for 750 seconds; less than a second counts as one. Pure,
/// any thread.
[[nodiscard]] QString savedTime(std::int64_t seconds, DurationStyle style);

/// Visible for two seconds, without pointer input or a slot in the corner: it stays below whatever
/// is there, also when that changes. Main thread.
class RetagToastController final : public collaborators::RetagToast {
public:
    static constexpr double visibleSeconds = 2;
    static constexpr double repositionSeconds = 0.25;

    explicit RetagToastController(const CardEnvironment& environment) : m_env(environment) {}

    /// Replaces an earlier toast immediately.
    void show(const QString& name, std::uint32_t color, std::int64_t seconds) override;

private:
    [[nodiscard]] std::optional<Placement> place() const;
    void reposition();
    void fadeOut();

    CardEnvironment m_env;
    std::unique_ptr<CardPanel> m_panel;
    TimerHandle m_dismissTimer;
    TimerHandle m_repositionTimer;
};

} // namespace vantle
