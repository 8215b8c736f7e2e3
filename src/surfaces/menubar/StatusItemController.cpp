#include "surfaces/menubar/StatusItemController.h"

#include "base/Words.h"
#include "surfaces/menubar/MenuBarDrawing.h"

#include <QPointer>

#include <utility>

namespace vantle {
namespace {

constexpr Seconds kPulseTolerance{0.02};

// The fullest step, shown when the dot does not breathe.
constexpr int kStillPhase = 2;

} // namespace

StatusItemController::StatusItemController(const Environment& environment) : m_env(environment) {
    applyMenu();
    m_env.item.setImage(m_icons.brick(), true);
    setStatusText({});
    connect(&m_env.item, &TrayItem::clicked, this, [this](QPoint place) {
        if (onClick) onClick(place);
    });
    connect(&m_env.tracker, &TrackerCore::stateChanged, this, &StatusItemController::applyLater);
    connect(&m_env.tracker, &TrackerCore::currentSkillIdChanged, this,
            &StatusItemController::applyLater);
    connect(&m_env.item, &TrayItem::shownChanged, this, &StatusItemController::apply);
    connect(&m_env.item, &TrayItem::groundChanged, this, &StatusItemController::showAgain);
    connect(&m_env.screens, &ScreenPower::slept, this, &StatusItemController::apply);
    connect(&m_env.screens, &ScreenPower::woke, this, &StatusItemController::apply);
    applyLater();
}

void StatusItemController::setStatusText(const QString& text) {
    const QString name = QStringLiteral("Vantle");
    m_env.item.setToolTip(text.isEmpty() ? name : name + QLatin1Char('\n') + text);
}

void StatusItemController::setPanelOpen(bool open) {
    if (std::exchange(m_panelOpen, open) != open) showAgain();
}

void StatusItemController::showAgain() {
    if (m_pulseTimer)
        showDot(m_pulsePhase, false);
    else
        apply();
}

void StatusItemController::applyLater() {
    // State and skill change one after the other; only the final pair is shown.
    if (m_applyPosted) return;
    m_applyPosted = true;
    m_env.scheduler.post([self = QPointer<StatusItemController>(this)] {
        if (!self) return;
        self->m_applyPosted = false;
        self->apply();
    });
}

void StatusItemController::applyMenu() {
    const bool idle = m_env.tracker.state() == TrackerCore::State::Idle;
    const QString toggle = idle ? Words::tr("Start") : Words::tr("Stop");
    if (std::exchange(m_toggleText, toggle) == toggle) return;
    // The item outlives the controller.
    const auto calls = [self = QPointer(this)](std::function<void()> StatusItemController::*on) {
        return [self, on] {
            if (self && self->*on) (self->*on)();
        };
    };
    m_env.item.setMenu({{Words::tr("Open"), calls(&StatusItemController::onOpen)},
                        {toggle, calls(&StatusItemController::onToggle)},
                        {Words::tr("Quit"), calls(&StatusItemController::onQuit)}});
}

void StatusItemController::apply() {
    applyMenu();
    switch (m_env.tracker.state()) {
    case TrackerCore::State::Idle:
        m_pulseTimer.reset();
        m_env.item.setImage(m_icons.brick(m_panelOpen), true);
        return;
    case TrackerCore::State::Paused:
        m_pulseTimer.reset();
        showDot(0, true);
        return;
    case TrackerCore::State::Running:
        if (m_env.reducedMotion.enabled() || isHidden()) {
            m_pulseTimer.reset();
            showDot(kStillPhase, false);
        } else {
            startPulse();
        }
        return;
    }
}

void StatusItemController::startPulse() {
    if (m_pulseTimer) return;
    m_pulseTimer = m_env.scheduler.scheduleRepeatingTimer(Seconds(pulseInterval), kPulseTolerance,
                                                          [this] { tickPulse(); });
    tickPulse();
}

void StatusItemController::tickPulse() {
    m_pulsePhase = (m_pulsePhase + 1) % menubar::kPhases;
    showDot(m_pulsePhase, false);
}

void StatusItemController::showDot(int phase, bool paused) {
    m_env.item.setImage(m_icons.statusDot(currentSkill().hexRGB, phase, paused, m_panelOpen,
                                          m_env.item.isOnLightGround()),
                        false);
}

bool StatusItemController::isHidden() const {
    return m_env.screens.asleep() || !m_env.item.isShown();
}

Skill StatusItemController::currentSkill() const {
    const std::optional<QString>& id = m_env.tracker.currentSkillId();
    return id ? m_env.skills.by(*id) : m_env.skills.all().front();
}

} // namespace vantle
