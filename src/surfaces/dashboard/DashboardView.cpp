#include "surfaces/dashboard/DashboardView.h"

#include "app/SessionFlow.h"
#include "base/LocalTime.h"
#include "base/Words.h"
#include "ceremony/show/VantleCopy.h"
#include "platform/Preferences.h"
#include "surfaces/kit/tokens/Look.h"
#include "tracking/DashFormat.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"
#include "tracking/Totals.h"

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

/// The current hour's colour before there is any session.
constexpr std::uint32_t kNoColor = look::kDark.accent.rgb;

/// Without a session: records with a start in the future begin to count.
constexpr Seconds kIdleReload{3600.0};

template <typename Line>
QVariantList asList(const std::vector<Line>& lines) {
    QVariantList list;
    for (const Line& line : lines)
        list << QVariant::fromValue(line);
    return list;
}

} // namespace

DashboardView::DashboardView(Environment environment) : m_env(std::move(environment)) {
    connect(&m_env.notifications, &NotificationCenter::HFSessionsChanged, this,
            &DashboardView::reload);
    connect(&tracker(), &TrackerCore::stateChanged, this, &DashboardView::followState);
    connect(&tracker(), &TrackerCore::currentSkillIdChanged, this, &DashboardView::ticked);
    connect(&m_env.skills, &SkillList::changed, this, &DashboardView::reload);
    settings::dailyGoalHours.watch(m_env.preferences, this, [this] { reload(); });
    connect(&tracker(), &TrackerCore::storageErrorChanged, this, &DashboardView::warningChanged);
    connect(&tracker(), &TrackerCore::dataWarningChanged, this, &DashboardView::warningChanged);
    connect(&m_env.flow.hotKey(), &HotKey::isRegisteredChanged, this,
            &DashboardView::shortcutChanged);
    followState();
}

DashboardView::~DashboardView() = default;

TrackerCore& DashboardView::tracker() const { return m_env.flow.tracker(); }

void DashboardView::followState() {
    m_tick = {};
    if (isOpen())
        m_tick = m_env.scheduler.scheduleRepeatingTimer(Seconds(1), Seconds(0.1),
                                                        [this] { Q_EMIT ticked(); });
    reload();
}

DashboardSetting DashboardView::setting() const {
    return {m_env.clock.now(), m_env.calendar(), m_env.skills.all(),
            settings::durationStyle.read(m_env.preferences),
            settings::dailyGoalHours.read(m_env.preferences)};
}

void DashboardView::reload() {
    const SessionList sessions = tracker().allSessions();
    const DashboardSetting now = setting();
    m_stats = asList(dashboard::stats(sessions, now));
    m_skillTotals = asList(dashboard::skillTotals(sessions, now));
    m_recent = asList(dashboard::recent(sessions, now));
    m_wallColors = dashboard::wallColors(sessions, now);
    m_dots = totals::hourDotCount(sessions, now.now);
    m_loggedSeconds = totals::secondsAllTime(sessions, now.now);
    m_count = sessions.size();
    m_lastColor = QColor::fromRgb(
        sessions.empty() ? kNoColor
                         : SkillList::display(sessions.back().skillId, now.skills).hexRGB);

    Seconds next = LocalTime(now.calendar).endOfDay(now.now) - now.now;
    if (!isOpen()) next = std::min(next, kIdleReload);
    m_nextReload = m_env.scheduler.scheduleOnce(next, [this] { reload(); });
    Q_EMIT figuresChanged();
    Q_EMIT ticked();
}

QString DashboardView::recentText() const {
    return dashboard::recentText(m_count, m_loggedSeconds,
                                 settings::durationStyle.read(m_env.preferences));
}

bool DashboardView::isOpen() const { return tracker().state() != TrackerCore::State::Idle; }
bool DashboardView::isPaused() const { return tracker().state() == TrackerCore::State::Paused; }

std::int64_t DashboardView::activeSeconds() const {
    return isOpen() ? std::max<std::int64_t>(tracker().displayActiveSeconds(), 0) : 0;
}

double DashboardView::partialFraction() const {
    return dashboard::partialFraction(m_loggedSeconds, activeSeconds());
}

double DashboardView::sliceFraction() const {
    return dashboard::sliceFraction(partialFraction(), m_dots);
}

QColor DashboardView::sliceColor() const { return isOpen() ? chipColor() : m_lastColor; }

QString DashboardView::figuresSpoken() const {
    QStringList parts;
    parts.reserve(m_stats.size());
    for (const QVariant& block : m_stats)
        parts << block.value<StatBlock>().spoken();
    return parts.join(QStringLiteral(". "));
}

QString DashboardView::wallLabel() const { return dashboard::wallLabel(m_dots, partialFraction()); }

Skill DashboardView::openSkill() const {
    return m_env.skills.display(tracker().currentSkillId().value_or(m_env.flow.selectedSkillId()));
}

QColor DashboardView::chipColor() const { return QColor::fromRgb(openSkill().hexRGB); }

QString DashboardView::elapsed() const {
    return dashformat::sessionDuration(activeSeconds(),
                                       settings::durationStyle.read(m_env.preferences));
}

QString DashboardView::chipState() const {
    return isPaused() ? Words::tr("Paused") : vantlecopy::activeStatus(openSkill().name);
}

QString DashboardView::chipText() const { return chipState() + QStringLiteral(" · ") + elapsed(); }

QString DashboardView::chipHoverText() const { return Words::tr("Stop · %1").arg(elapsed()); }

QString DashboardView::chipLabel() const {
    return Words::tr("%1. Stops the session.").arg(chipText());
}

bool DashboardView::hasShortcut() const { return m_env.flow.hotKey().isRegistered(); }

QString DashboardView::warning() const {
    const auto& text =
        tracker().storageError() ? tracker().storageError() : tracker().dataWarning();
    return text ? Words::tr("Data warning: %1").arg(*text) : QString();
}

void DashboardView::toggle() { m_env.flow.toggle(); }

} // namespace vantle
