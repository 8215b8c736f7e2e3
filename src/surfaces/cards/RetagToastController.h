// The short word after a change of skill: how much time was just put away, and where.
#pragma once

#include "app/Collaborators.h"
#include "surfaces/cards/CornerCard.h"
#include "tracking/DurationStyle.h"

#include <memory>

namespace vantle {

/// "12 min" for 750 seconds that were just put away; less than a second counts as one. Pure, any
/// thread.
[[nodiscard]] QString savedTime(std::int64_t seconds, DurationStyle style);

/// Floats for two seconds, takes no clicks, and does not compete for the corner: it keeps below
/// whatever stands there, also when that comes or goes meanwhile. Main thread.
class RetagToastController final : public collaborators::RetagToast {
public:
    static constexpr double visibleSeconds = 2;
    static constexpr double repositionSeconds = 0.25;

    explicit RetagToastController(const CardEnvironment& environment) : m_env(environment) {}

    /// A toast before it is gone at once.
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
