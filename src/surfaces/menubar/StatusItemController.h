// The controller of the tray item's image and menu.
#pragma once

#include "base/Scheduler.h"
#include "platform/ReducedMotion.h"
#include "platform/ScreenPower.h"
#include "platform/TrayItem.h"
#include "surfaces/menubar/MenuBarIcon.h"
#include "tracking/SkillList.h"
#include "tracking/TrackerCore.h"

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>

#include <functional>

namespace vantle {

/// A wall without a session, a breathing dot in the skill's colour while one counts, the dot with
/// two bars while paused. The breath is the only animation during a whole session, so it stops
/// while invisible (screens asleep, no tray) and with reduced motion. Main thread.
class StatusItemController final : public QObject {
    Q_OBJECT

public:
    /// The services of the controller. All of them must outlive it.
    struct Environment {
        TrackerCore& tracker;
        SkillList& skills;
        TrayItem& item;
        Scheduler& scheduler;
        const ReducedMotion& reducedMotion;
        ScreenPower& screens;
    };

    explicit StatusItemController(const Environment& environment);

    static constexpr double pulseInterval = 0.12; ///< seconds; eight per breath

    /// Sets the second line of the tooltip; empty removes it.
    void setStatusText(const QString& text);

    /// Whether the command center is open, which the image shows immediately.
    void setPanelOpen(bool open);

    /// The item's place, for the panel; empty where unknown.
    [[nodiscard]] QRect geometry() const { return m_env.item.geometry(); }

    /// Called for a left or right click with its position; (0, 0) where unknown. Set once by the
    /// owner, which it must hold weakly.
    std::function<void(QPoint place)> onClick;

    /// The commands of the item's menu, on desktops that show one on a right click. Set like
    /// onClick.
    std::function<void()> onOpen;
    std::function<void()> onToggle; ///< starts or stops
    std::function<void()> onQuit;

private:
    void applyLater();
    void apply();
    void applyMenu();
    void tickPulse();
    void startPulse();
    void showDot(int phase, bool paused);
    void showAgain(); ///< the same state on another background
    [[nodiscard]] bool isHidden() const;
    [[nodiscard]] Skill currentSkill() const;

    Environment m_env;
    MenuBarIcon m_icons;
    TimerHandle m_pulseTimer; ///< set while the dot breathes
    int m_pulsePhase = 0;
    bool m_applyPosted = false;
    bool m_panelOpen = false;
    QString m_toggleText; ///< in the menu
};

} // namespace vantle
