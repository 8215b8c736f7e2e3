#include "app/SessionFlow.h"

#include "app/ActionNote.h"
#include "app/PracticeSessions.h"
#include "app/SessionSurfaces.h"
#include "base/Words.h"
#include "platform/FrontmostApp.h"
#include "platform/Preferences.h"
#include "sensing/AutoSkillMonitor.h"
#include "sensing/FocusLink.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"

#include <QPointer>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace vantle {

using CauseScope = QScopedValueRollback<SessionCause>;

SessionFlow::SessionFlow(const Environment& environment)
    : m_env(environment)
    , m_idle(m_env.clock, m_env.scheduler, m_env.idleSource, m_env.screenPower, m_env.preferences)
    , m_hotKey(m_env.hotKeyPort, m_env.scheduler, m_env.preferences) {
    wireIdle();
    m_env.tracker.onSessionStarted = [this](const Skill& skill, Date) { onSessionStarted(skill); };
    m_env.tracker.onSessionEnded = [this](const Session& session) { onSessionEnded(session); };
    m_hotKey.onPressed = [this] { onHotKeyPressed(); };
}

SessionFlow::~SessionFlow() {
    m_env.tracker.onSessionStarted = nullptr;
    m_env.tracker.onSessionEnded = nullptr;
}

void SessionFlow::wireIdle() {
    TrackerCore& tracker = m_env.tracker;
    tracker.setIdleMonitor(&m_idle);
    m_idle.onIdleBegan = [this, &tracker](double seconds) {
        tracker.pause(m_env.clock.now() - Seconds(seconds));
    };
    // Input while the screens sleep is a password, or the key that locked them.
    m_idle.onActivityResumed = [this, &tracker] {
        if (!m_idle.screensSleep()) tracker.resume();
    };
    m_idle.onScreensWoke = [&tracker] { tracker.resume(); };
    m_idle.onScreensSlept = [this, &tracker] {
        tracker.pause(m_env.clock.now());
        // The machine may suspend as soon as this returns.
        tracker.drainPendingIO();
    };
}

void SessionFlow::begin() {
    m_idle.start();
    m_hotKey.registerHotKey();
    // Before the idle capsule, so that the recovery card comes first.
    if (const auto marker = m_env.tracker.takeOrphanedMarker())
        m_env.scheduler.post([self = QPointer(this), marker = *marker] {
            if (self) self->m_env.surfaces.offerRecovery(marker);
        });
    m_env.scheduler.post([self = QPointer(this)] {
        if (self) self->showIdlePrompt();
    });
}

// Commands

void SessionFlow::onHotKeyPressed() {
    toggle(SessionCause::HotKey);
    // Afterwards: the file of the preferences would delay the session's own.
    settings::hotKeyHintShown.write(m_env.preferences, true);
}

void SessionFlow::toggle(SessionCause cause) {
    const CauseScope scope(m_cause, cause);
    m_env.note.clear();
    if (!isIdle()) {
        if (!m_env.tracker.stop()) m_env.note.report(Words::tr("Couldn’t save this session"));
        return;
    }
    if (!start(0)) m_env.note.report(Words::tr("Couldn’t start vantle"));
}

std::optional<int> SessionFlow::start(int backfillMinutes) {
    // The input that starts a session may end an absence. Seen first at the next sample, up to ten
    // seconds later, it would cut the work between the two.
    m_idle.poll();
    const auto applied = m_env.tracker.start(m_env.skills.by(m_selectedSkillId), backfillMinutes);
    m_idle.reportAgain();
    return applied;
}

void SessionFlow::startWithBackfill(int minutes) {
    m_env.note.clear();
    if (!isIdle()) {
        m_env.note.say(m_env.tracker.applyBackfill(minutes)
                           ? Words::tr("Moved the session start back %1 min").arg(minutes)
                           : Words::tr("Backfill skipped · couldn't confirm this Mac was active"));
        return;
    }
    const auto applied = start(minutes);
    if (!applied)
        m_env.note.report(Words::tr("Couldn’t start vantle"));
    else if (*applied < minutes)
        m_env.note.say(Words::tr("Started now · couldn't confirm %1 min of activity").arg(minutes));
}

bool SessionFlow::quickLog(const QString& skillId, int minutes, const QString& note) {
    constexpr int kMaxMinutes = 960;
    const int clamped = std::clamp(minutes, 1, kMaxMinutes);
    if (!m_env.tracker.logManual(skillId, clamped, note)) {
        m_env.note.report(Words::tr("Couldn’t log that time"));
        return false;
    }
    m_env.note.say(Words::tr("Logged %1 min manually (stays on this Mac)").arg(clamped));
    return true;
}

void SessionFlow::startPractice() {
    if (isIdle()) toggle(SessionCause::Practice);
}

void SessionFlow::discardPractice() {
    m_env.note.clear();
    if (!m_env.practice.isOpen()) return;
    const CauseScope scope(m_cause, SessionCause::DiscardPractice);
    (void)m_env.tracker.stop();
}

SessionFlow::Split SessionFlow::split(const Skill& skill) {
    const CauseScope scope(m_cause, SessionCause::Split);
    m_idle.poll(); // as for a start
    Split halves{m_env.tracker.stop()};
    if (halves.ended) halves.hasStarted = m_env.tracker.startAfter(*halves.ended, skill);
    m_idle.reportAgain();
    return halves;
}

void SessionFlow::closeBrokenSplit() {
    m_bundleId.reset();
    m_env.autoSkill.clearSessionOverrides();
    m_env.focusLink.sessionEnded();
    ensureIdlePrompt();
}

void SessionFlow::end() {
    if (std::exchange(m_isEnding, true)) return;
    (void)m_env.tracker.stop();
    m_env.tracker.putBackOrphanedMarker();
    m_hotKey.unregisterHotKey();
    m_idle.stop();
    m_env.tracker.drainPendingIO();
    m_env.autoSkill.rules().drainPendingIO();
    m_env.preferences.synchronize();
}

// Callbacks of the tracker

void SessionFlow::onSessionStarted(const Skill& skill) {
    m_bundleId = bundleIdInFront();
    if (m_cause == SessionCause::Split) {
        m_env.surfaces.showNewSkill(skill);
        return;
    }
    m_env.practice.noteStart(m_cause == SessionCause::Practice);
    m_env.surfaces.forgetLastSession();
    m_env.focusLink.sessionStarted();
    m_env.surfaces.showSession(skill, m_cause == SessionCause::AutoMode);
}

void SessionFlow::onSessionEnded(const Session& session) {
    const bool needsWelcome = m_env.practice.needsWelcome();
    const bool isPractice = m_env.practice.isPractice();
    if (m_cause == SessionCause::Split) {
        if (isPractice) m_env.tracker.deleteSession(session.id);
        return;
    }
    m_env.practice.noteEnd();
    m_bundleId.reset();
    m_env.autoSkill.clearSessionOverrides();
    m_env.focusLink.sessionEnded();
    m_env.surfaces.showEnd(session);
    // Practice leaves no record.
    if (isPractice) m_env.tracker.deleteSession(session.id);
    if (m_cause == SessionCause::DiscardPractice) {
        showIdlePrompt();
        return;
    }
    if (m_isEnding) return;
    m_env.surfaces.showSummary(session, isPractice, m_cause == SessionCause::HotKey);
    if (!needsWelcome) showIdlePrompt();
}

std::optional<QString> SessionFlow::bundleIdInFront() const {
    const auto application = m_env.frontmostApp.frontmost();
    if (!application || application->bundleId.isEmpty()) return std::nullopt;
    return application->bundleId;
}

// The skill of the next start

void SessionFlow::choose(const QString& id) {
    settings::lastUsedSkill.write(m_env.preferences, id);
    chooseUnremembered(id);
}

void SessionFlow::chooseUnremembered(const QString& id) {
    if (std::exchange(m_selectedSkillId, id) != id) Q_EMIT selectedSkillIdChanged();
}

void SessionFlow::restoreChoice() {
    const QString lastUsed = settings::lastUsedSkill.read(m_env.preferences);
    chooseUnremembered(m_env.skills.by(lastUsed).id);
}

void SessionFlow::showIdlePrompt() {
    m_env.surfaces.showIdlePrompt(m_env.skills.by(m_selectedSkillId));
}

void SessionFlow::ensureIdlePrompt() {
    if (!m_env.practice.needsWelcome()) showIdlePrompt();
}

} // namespace vantle
