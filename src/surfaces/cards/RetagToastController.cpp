#include "surfaces/cards/RetagToastController.h"

#include "app/OpenQuestions.h"
#include "surfaces/cards/CardPlacement.h"
#include "surfaces/cards/RetagToastModel.h"
#include "tracking/DashFormat.h"
#include "tracking/Settings.h"

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

constexpr Seconds kRepositionTolerance{0.1};
constexpr std::int64_t kMinute = 60;
constexpr double kHour = 3600.0;

QString valueAndUnit(std::int64_t seconds, DurationStyle style) {
    if (seconds < kMinute) return QStringLiteral("<1 min");
    const auto stat = dashformat::statValue(static_cast<double>(seconds) / kHour, style);
    return stat.unit.isEmpty() ? stat.value : stat.value + QLatin1Char(' ') + stat.unit;
}

} // namespace

QString savedTime(std::int64_t seconds, DurationStyle style) {
    const std::int64_t saved = std::max<std::int64_t>(seconds, 1);
    switch (style) {
    case DurationStyle::Natural:
    case DurationStyle::Clock:
        return dashformat::sessionDuration(saved, style);
    case DurationStyle::HoursMinutes:
    case DurationStyle::Minutes:
        return valueAndUnit(saved, style);
    }
    Q_UNREACHABLE();
}

void RetagToastController::show(const QString& name, std::uint32_t color, std::int64_t seconds) {
    m_dismissTimer.reset();
    m_repositionTimer.reset();
    m_panel.reset();
    const QString saved = savedTime(seconds, settings::durationStyle.read(m_env.preferences));
    Q_EMIT m_env.questions.said(RetagToastModel(saved, name, QColor::fromRgb(color)).spoken());
    if (!m_env.stage.cardScreen()) return;
    m_panel =
        m_env.stage.raise(CardView::RetagToast,
                          std::make_shared<RetagToastModel>(saved, name, QColor::fromRgb(color)));
    if (!m_panel) return;
    if (const auto here = place()) m_panel->showAt(*here);
    m_dismissTimer = m_env.scheduler.scheduleOnce(Seconds(visibleSeconds), [this] { fadeOut(); });
    m_repositionTimer = m_env.scheduler.scheduleRepeatingTimer(
        Seconds(repositionSeconds), kRepositionTolerance, [this] { reposition(); });
}

std::optional<Placement> RetagToastController::place() const {
    const auto screen = m_env.stage.cardScreen();
    if (!screen) return std::nullopt;
    return cardplacement::toast(*screen, m_panel->size(), m_env.stage.panelFrames());
}

void RetagToastController::reposition() {
    if (const auto target = place(); target && target->ground() != m_panel->frame())
        m_panel->moveTo(*target);
}

void RetagToastController::fadeOut() {
    m_dismissTimer.reset();
    m_repositionTimer.reset();
    m_env.stage.dismiss(std::move(m_panel));
}

} // namespace vantle
