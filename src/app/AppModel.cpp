#include "app/AppModel.h"

#include "app/PreferenceKeys.h"
#include "app/WeeklyReview.h"
#include "base/Text.h"
#include "platform/Preferences.h"
#include "platform/ReducedMotion.h"
#include "tracking/AppPaths.h"
#include "tracking/NotificationCenter.h"
#include "tracking/SkillList.h"

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

constexpr Seconds kIntroDelay{0.7};

} // namespace

AppModel::AppModel(const Environment& environment, Collaborators collaborators)
    : m_env(environment)
    , m_collaborators(std::move(collaborators))
    , m_tracker({m_env.clock, m_env.scheduler, m_env.ioQueue, m_env.paths, m_env.preferences,
                 m_env.skills, m_env.notifications})
    , m_idle(m_env.clock, m_env.scheduler, m_env.idleSource, m_env.screenPower, m_env.preferences)
    , m_hotKey(m_env.hotKeyPort, m_env.scheduler) {
    // Before any data file is read: this gives back what its owner may not read.
    m_env.paths.enforcePrivatePermissions();
    m_skills = m_env.skills.all();
    reportUnreadableSkills();
    const auto lastUsed = m_env.preferences.string(QLatin1String(TrackerCore::lastUsedSkillKey));
    m_selectedSkillId = m_env.skills.by(lastUsed.value_or(QString())).id;
    wireIdle();
    wireTracker();
    wireAutoSkill();
    connect(&m_env.notifications, &NotificationCenter::HFSessionsChanged, this,
            [this] { m_reviewOfWeek.reset(); });
    m_collaborators.autoSkill->refreshFromDefaults();
    m_idle.start();
    m_hotKey.onPressed = [this] { onHotKeyPressed(); };
    m_hotKey.registerHotKey();
    // The recovery card comes before the idle capsule.
    if (const auto marker = m_tracker.takeOrphanedMarker())
        m_env.scheduler.post([self = QPointer(this), marker = *marker] {
            if (self) self->recoverAndNotify(marker);
        });
    m_env.scheduler.post([self = QPointer(this)] {
        if (self) self->showIdleNotchPrompt(false);
    });
}

AppModel::~AppModel() = default;

void AppModel::onHotKeyPressed() {
    m_env.preferences.setBoolean(preferencekeys::hotkeyHintShown, true);
    m_stopViaHotkey = !isIdle();
    toggleVantle();
    m_stopViaHotkey = false;
}

void AppModel::toggleVantle() {
    setLastActionNote(std::nullopt);
    if (!isIdle()) {
        if (!m_tracker.stop()) report(QStringLiteral("Couldn’t save this session"));
        return;
    }
    if (!m_tracker.start(m_env.skills.by(m_selectedSkillId), 0))
        report(QStringLiteral("Couldn’t start vantle"));
}

void AppModel::startWithBackfill(int minutes) {
    setLastActionNote(std::nullopt);
    if (!isIdle()) {
        setLastActionNote(
            m_tracker.applyBackfill(minutes)
                ? QStringLiteral("Moved the session start back %1 min").arg(minutes)
                : QStringLiteral("Backfill skipped · couldn't confirm this Mac was active"));
        return;
    }
    const auto applied = m_tracker.start(m_env.skills.by(m_selectedSkillId), minutes);
    if (!applied)
        report(QStringLiteral("Couldn’t start vantle"));
    else if (*applied < minutes)
        setLastActionNote(
            QStringLiteral("Started now · couldn't confirm %1 min of activity").arg(minutes));
}

bool AppModel::quickLog(const QString& skillId, int minutes, const QString& note) {
    constexpr int kMaxMinutes = 960;
    const int clamped = std::clamp(minutes, 1, kMaxMinutes);
    if (!m_tracker.logManual(skillId, clamped, note)) {
        report(QStringLiteral("Couldn’t log that time"));
        return false;
    }
    setLastActionNote(QStringLiteral("Logged %1 min manually (stays on this Mac)").arg(clamped));
    return true;
}

void AppModel::startPractice() {
    if (!isIdle()) return;
    m_isStartingPractice = true;
    toggleVantle();
    m_isStartingPractice = false;
}

void AppModel::markSessionAsPractice() {
    if (needsWelcome()) m_isPracticeMarked = !isIdle();
}

bool AppModel::isPractice() const { return !isIdle() && (m_isPracticeMarked || needsWelcome()); }

void AppModel::discardPracticeSession() {
    setLastActionNote(std::nullopt);
    if (!isPractice()) return;
    m_isDiscardingPractice = true;
    (void)m_tracker.stop();
    m_isDiscardingPractice = false;
}

void AppModel::markWelcomeDone() {
    setLastActionNote(std::nullopt);
    m_env.preferences.setBoolean(preferencekeys::onboardDone, true);
    m_env.preferences.remove(preferencekeys::onboardStage);
}

void AppModel::refreshPanelState() {
    const Date now = m_env.clock.now();
    const auto week = weeklyreview::unseenLastWeek(now, m_env.calendar(), m_env.preferences);
    // The log is read only where it decides, and once: it may hold years.
    if (week && (!m_reviewOfWeek || m_reviewOfWeek->first != week->start))
        m_reviewOfWeek.emplace(week->start,
                               weeklyreview::holdsAReview(m_tracker.allSessions(), *week));
    const bool ready = week && m_reviewOfWeek->second;
    if (std::exchange(m_wrappedReady, ready) != ready) Q_EMIT wrappedReadyChanged();
    const int coverage = m_idle.coverageMinutes(now);
    if (std::exchange(m_backfillCoverageMinutes, coverage) != coverage)
        Q_EMIT backfillCoverageMinutesChanged();
}

void AppModel::ensureIdleNotch() {
    if (isOnboarded()) showIdleNotchPrompt(false);
}

void AppModel::flashIdleNotchIntroIfNeeded() {
    if (m_env.preferences.flag(preferencekeys::notchIntroFlashed) || !isIdle() ||
        m_env.reducedMotion.enabled())
        return;
    m_env.preferences.setBoolean(preferencekeys::notchIntroFlashed, true);
    afterDelay(kIntroDelay, [this] {
        if (!isIdle()) return;
        m_collaborators.notch->flashIdleCard();
        setPulsePrimaryOnce(true); // the button in the panel that does the same
    });
}

void AppModel::prepareForTermination() {
    if (std::exchange(m_isQuitting, true)) return;
    (void)m_tracker.stop();
    m_tracker.putBackOrphanedMarker();
    m_hotKey.unregisterHotKey();
    m_idle.stop();
    m_tracker.drainPendingIO();
    m_collaborators.autoSkill->drainPendingIO();
    m_env.preferences.synchronize();
}

void AppModel::prepareForTerminationUnseen() {
    for (QObject* heard : {static_cast<QObject*>(this), static_cast<QObject*>(&m_tracker),
                           static_cast<QObject*>(&m_env.notifications)})
        heard->blockSignals(true);
    m_hasSurfaces = false;
    prepareForTermination();
}

void AppModel::quit() {
    prepareForTermination();
    if (m_env.terminate) m_env.terminate();
}

bool AppModel::needsWelcome() const { return !m_env.preferences.flag(preferencekeys::onboardDone); }

std::optional<QString> AppModel::projectName() const {
    const QString name =
        text::trimmed(m_env.preferences.string(preferencekeys::projectName).value_or(QString()));
    return name.isEmpty() ? std::nullopt : std::optional(name);
}

void AppModel::setProjectName(const QString& name) {
    m_env.preferences.setString(preferencekeys::projectName, name);
}

void AppModel::select(const QString& id) {
    m_env.preferences.setString(QLatin1String(TrackerCore::lastUsedSkillKey), id);
    if (std::exchange(m_selectedSkillId, id) != id) Q_EMIT selectedSkillIdChanged();
}

void AppModel::publishSkills() {
    m_skills = m_env.skills.all();
    Q_EMIT skillsChanged();
}

void AppModel::setPulsePrimaryOnce(bool pulse) {
    if (std::exchange(m_pulsePrimaryOnce, pulse) != pulse) Q_EMIT pulsePrimaryOnceChanged();
}

void AppModel::setLastActionNote(std::optional<QString> note) {
    if (m_lastActionNote == note) return;
    m_lastActionNote = std::move(note);
    Q_EMIT lastActionNoteChanged();
}

void AppModel::report(const QString& text) {
    setLastActionNote(m_tracker.storageError().value_or(text));
}

bool AppModel::reportUnreadableSkills() {
    const auto& error = m_env.skills.readError();
    if (!error) return false;
    setLastActionNote(QStringLiteral("Couldn’t read your modes. Check folder permissions, then "
                                     "start Vantle again. (%1)")
                          .arg(error->description()));
    return true;
}

void AppModel::afterDelay(Seconds delay, std::function<void()> work) {
    m_delayedWork.emplace_back();
    const auto place = std::prev(m_delayedWork.end());
    *place = m_env.scheduler.scheduleOnce(delay, [this, place, work = std::move(work)] {
        const TimerHandle spent = std::move(*place);
        m_delayedWork.erase(place);
        work();
    });
}

} // namespace vantle
