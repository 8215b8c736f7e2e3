#include "launch/AutoSkillAdapter.h"

#include "sensing/AutoSuggestion.h"

#include <utility>

namespace vantle {

void AutoSkillAdapter::setHooks(Hooks hooks) {
    m_monitor.sessionState = std::move(hooks.sessionState);
    m_monitor.sessionSkillId = std::move(hooks.sessionSkillId);
    m_monitor.sessionBundleId = std::move(hooks.sessionBundleId);
    m_monitor.onRetagSuggested = std::move(hooks.onRetagSuggested);
    m_monitor.onAutoStart = std::move(hooks.onAutoStart);
    m_monitor.onTagPromptSuggested = std::move(hooks.onTagPromptSuggested);
}

void AutoSkillAdapter::refreshFromDefaults() { m_monitor.refreshFromDefaults(); }

void AutoSkillAdapter::clearSessionOverrides() { m_monitor.clearSessionOverrides(); }

void AutoSkillAdapter::noteManualSkillChoice() { m_monitor.noteManualSkillChoice(); }

std::optional<Application> AutoSkillAdapter::frontmostAppForCorrection() {
    return m_monitor.frontmostAppForCorrection();
}

std::optional<QString> AutoSkillAdapter::ruling(const QString& bundleId) {
    return m_monitor.rules().ruling(bundleId);
}

bool AutoSkillAdapter::mayOfferCorrectionPrompt(const QString& bundleId) {
    return m_monitor.mayOfferCorrectionPrompt(bundleId);
}

void AutoSkillAdapter::setRule(const QString& bundleId, const QString& ruling) {
    m_monitor.rules().setRule(bundleId, ruling);
}

void AutoSkillAdapter::forgetPromptOffer(const QString& bundleId) {
    m_monitor.forgetPromptOffer(bundleId);
}

void AutoSkillAdapter::noteTagPromptResolved(const QString& bundleId) {
    m_monitor.noteTagPromptResolved(bundleId);
}

void AutoSkillAdapter::removeRules(const QString& skillId) {
    m_monitor.rules().removeRules(skillId);
}

void AutoSkillAdapter::eraseAllData() { m_monitor.eraseAllData(); }

void AutoSkillAdapter::drainPendingIO() { m_monitor.rules().drainPendingIO(); }

bool AutoSkillAdapter::isBrowser(const QString& bundleId, const QString& appName) {
    return autosuggestion::isBrowser(bundleId, appName);
}

} // namespace vantle
