#include "sensing/AutoSkillMonitor.h"

#include "base/Clock.h"
#include "platform/IdleSource.h"
#include "platform/Preferences.h"
#include "sensing/AutoSuggestion.h"
#include "sensing/IdleMonitor.h"
#include "tracking/Settings.h"

#include <QPointer>

namespace vantle {

using State = TrackerCore::State;

AutoSkillMonitor::AutoSkillMonitor(const Environment& environment)
    : m_env(environment)
    , m_rules({environment.clock, environment.scheduler, environment.ioQueue, environment.paths,
               environment.skills}) {
    // Deferred, so that a caller who writes several preferences has written all of them.
    settings::autoMode.watch(m_env.preferences, this, [this] {
        m_env.scheduler.post([self = QPointer(this)] {
            if (self) self->refreshFromDefaults();
        });
    });
}

AutoSkillMonitor::~AutoSkillMonitor() = default;

// Running

void AutoSkillMonitor::refreshFromDefaults() {
    if (isEnabled() == m_isRunning) return;
    if (m_isRunning)
        stop();
    else
        start();
}

void AutoSkillMonitor::start() {
    m_isRunning = true;
    m_rules.loadIfNeeded();
    m_activationObserver = connect(&m_env.frontmostApp, &FrontmostApp::activated, this,
                                   &AutoSkillMonitor::handleActivation);
    // The application that is in front already counts from now on.
    handleActivation(m_env.frontmostApp.frontmost());
}

void AutoSkillMonitor::stop() {
    m_isRunning = false;
    disconnect(m_activationObserver);
    m_pendingWork.reset();
    m_retags.clear();
}

void AutoSkillMonitor::eraseAllData() {
    m_pendingWork.reset();
    m_retags.clear();
    m_prompts.clear();
    m_sessionOverrides.clear();
    m_rules.eraseAllData();
}

// A switch

void AutoSkillMonitor::handleActivation(const std::optional<Application>& app) {
    m_retags.interrupt(m_env.clock.now());
    m_pendingWork.reset();
    if (!isEnabled() || !app || app->bundleId.isEmpty() || app->bundleId == m_env.ownBundleId)
        return;

    const Application named{app->bundleId, app->name.isEmpty() ? app->bundleId : app->name};
    m_rules.recordSeen(named.bundleId, named.name);
    const std::optional<QString> ruling = rulingOrSuggestion(named);
    if (!ruling)
        considerTagPrompt(named);
    else if (*ruling != QLatin1String(AutoRules::ignoreRuling))
        considerDwell(named.bundleId, *ruling);
}

std::optional<QString> AutoSkillMonitor::rulingOrSuggestion(const Application& app) {
    if (auto ruling = m_rules.ruling(app.bundleId)) return ruling;
    auto suggestion = m_rules.suggestedSkillId(app.bundleId, app.name);
    if (suggestion) m_rules.setAutomaticRule(app.bundleId, *suggestion);
    return suggestion;
}

void AutoSkillMonitor::considerDwell(const QString& bundleId, const QString& skillId) {
    switch (currentState()) {
    case State::Idle:
        if (isAutoStartOn()) arm(autoStartDwellSeconds, {DwellKind::AutoStart, bundleId, skillId});
        return;
    case State::Running:
        considerRetag(bundleId, skillId);
        return;
    case State::Paused:
        return;
    }
}

void AutoSkillMonitor::considerRetag(const QString& bundleId, const QString& skillId) {
    if (currentSkillId() == skillId || m_sessionOverrides.contains(bundleId)) return;
    const Date now = m_env.clock.now();
    const double dwell = m_retags.takeDwell(bundleId, now);
    m_retags.arm(bundleId, dwell, now);
    arm(dwell, {DwellKind::Retag, bundleId, skillId});
}

void AutoSkillMonitor::considerTagPrompt(const Application& app) {
    if (!onTagPromptSuggested || !m_prompts.mayPrompt(app.bundleId, m_env.clock.now())) return;
    m_pendingWork = m_env.scheduler.scheduleOnce(Seconds(tagPromptDwellSeconds),
                                                 [this, app] { fireTagPrompt(app); });
}

// A stay that has lasted

void AutoSkillMonitor::arm(double seconds, Dwell dwell) {
    m_pendingWork = m_env.scheduler.scheduleOnce(Seconds(seconds),
                                                 [this, dwell = std::move(dwell)] { fire(dwell); });
}

void AutoSkillMonitor::fire(const Dwell& dwell) {
    m_pendingWork.reset();
    if (!isEnabled() || !isInFront(dwell.bundleId)) return;
    // A rule that changed during the stay ends it.
    if (m_rules.ruling(dwell.bundleId) != dwell.skillId) return;
    if (dwell.kind == DwellKind::Retag)
        fireRetag(dwell.skillId);
    else
        fireAutoStart(dwell.skillId);
}

void AutoSkillMonitor::fireRetag(const QString& skillId) {
    if (currentState() != State::Running || currentSkillId() == skillId) return;
    m_retags.clear();
    if (onRetagSuggested) onRetagSuggested(skillId);
}

void AutoSkillMonitor::fireAutoStart(const QString& skillId) {
    if (currentState() != State::Idle || !isAutoStartOn() || !isIdleBelow(autoStartDwellSeconds))
        return;
    if (onAutoStart) onAutoStart(skillId);
}

void AutoSkillMonitor::fireTagPrompt(const Application& app) {
    m_pendingWork.reset();
    if (!isEnabled() || !isInFront(app.bundleId)) return;
    if (m_rules.ruling(app.bundleId) || !m_prompts.mayPrompt(app.bundleId, m_env.clock.now()))
        return;
    // The application in which the session began needs no question.
    if (sessionBundleId && sessionBundleId() == app.bundleId) return;
    if (!isIdleBelow(tagPromptDwellSeconds)) return;
    m_prompts.noteOffered(app.bundleId);
    if (onTagPromptSuggested) onTagPromptSuggested(app.bundleId, app.name);
}

// The user's own choices

void AutoSkillMonitor::noteManualSkillChoice() {
    const auto app = m_env.frontmostApp.frontmost();
    if (app && !app->bundleId.isEmpty()) m_sessionOverrides.insert(app->bundleId);
}

void AutoSkillMonitor::noteTagPromptResolved(const QString& bundleId) {
    m_prompts.noteResolved(bundleId, m_env.clock.now());
}

bool AutoSkillMonitor::mayOfferCorrectionPrompt(const QString& bundleId) const {
    return m_prompts.mayPrompt(bundleId, m_env.clock.now());
}

std::optional<Application> AutoSkillMonitor::frontmostAppForCorrection() {
    auto app = m_env.frontmostApp.frontmost();
    if (!app || app->bundleId.isEmpty() || app->bundleId == m_env.ownBundleId) return std::nullopt;
    if (app->name.isEmpty()) app->name = app->bundleId;
    if (autosuggestion::isBrowser(app->bundleId, app->name)) return std::nullopt;
    return app;
}

// Queries

bool AutoSkillMonitor::isEnabled() const { return settings::autoMode.read(m_env.preferences); }

bool AutoSkillMonitor::isAutoStartOn() const { return settings::autoStart.read(m_env.preferences); }

bool AutoSkillMonitor::isInFront(const QString& bundleId) {
    const auto app = m_env.frontmostApp.frontmost();
    return app && app->bundleId == bundleId;
}

bool AutoSkillMonitor::isIdleBelow(double seconds) {
    // An unknown idle counter does not count as presence.
    const auto idle = IdleMonitor::systemIdleSeconds(m_env.idleSource);
    return idle && *idle < seconds;
}

State AutoSkillMonitor::currentState() const { return sessionState ? sessionState() : State::Idle; }

std::optional<QString> AutoSkillMonitor::currentSkillId() const {
    return sessionSkillId ? sessionSkillId() : std::nullopt;
}

} // namespace vantle
