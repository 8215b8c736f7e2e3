// Keeps the tray item in step with the session.
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

/// A wall when no session is open, a breathing dot in the skill's colour while one counts, the dot
/// with two bars while it is paused. The breath is the only animation that runs all through a
/// session, so it stops whenever nobody can see it: while the screens sleep, while no tray shows
/// the item, and under reduced motion. Main thread.
class StatusItemController final : public QObject {
    Q_OBJECT

public:
    /// What the controller works with. All of it must outlive the controller.
    struct Environment {
        TrackerCore& tracker;
        SkillList& skills;
        TrayItem& item;
        Scheduler& scheduler;
        const ReducedMotion& reducedMotion;
        ScreenPower& screens;
    };

    explicit StatusItemController(const Environment& environment);

    static constexpr double pulseInterval = 0.12; ///< seconds; eight of them make a breath

    /// A line under the name in the tool tip; an empty text removes it.
    void setStatusText(const QString& text);

    /// Whether the panel that belongs to the item is open, which the image shows at once.
    void setPanelOpen(bool open);

    /// Where the item is, to place a panel by; empty where the desktop does not tell.
    [[nodiscard]] QRect geometry() const { return m_env.item.geometry(); }

    /// A left or right click, with its place on the screen as far as known, else (0, 0). Set once
    /// by the owner, which it must hold weakly.
    std::function<void(QPoint place)> onClick;

    /// What the lines of the item's menu do, on desktops that show one at a right click. Set like
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
    [[nodiscard]] bool isHidden() const;
    [[nodiscard]] Skill currentSkill() const;

    Environment m_env;
    MenuBarIcon m_icons;
    TimerHandle m_pulseTimer; ///< there exactly while the dot breathes
    int m_pulsePhase = 0;
    bool m_applyPosted = false;
    bool m_panelOpen = false;
    QString m_toggleText; ///< in the menu
};

} // namespace vantle
