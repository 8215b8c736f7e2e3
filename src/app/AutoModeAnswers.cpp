#include "app/AutoModeAnswers.h"

#include "app/SessionFlow.h"
#include "app/SkillCommands.h"
#include "base/Clock.h"
#include "platform/Preferences.h"
#include "sensing/AutoSkillMonitor.h"
#include "sensing/AutoSuggestion.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"

#include <QPointer>

namespace vantle {

AutoModeAnswers::AutoModeAnswers(const Environment& environment) : m_env(environment) {
    const SessionFlow& flow = m_env.flow;
    AutoSkillMonitor& monitor = m_env.monitor;
    monitor.sessionState = [&flow] { return flow.tracker().state(); };
    monitor.sessionSkillId = [&flow] { return flow.tracker().currentSkillId(); };
    monitor.sessionBundleId = [&flow] {
        return flow.isIdle() ? std::optional<QString>() : flow.sessionBundleId();
    };
    monitor.onRetagSuggested = [this](const QString& skillId) { changeSkill(skillId); };
    monitor.onAutoStart = [this](const QString& skillId) { startSession(skillId); };
    monitor.onTagPromptSuggested = [this](const QString& bundleId, const QString& appName) {
        askForTag(bundleId, appName);
    };
    m_env.skills.onSplitByHand = [this](const QString& skillId) { offerRule(skillId); };
}

AutoModeAnswers::~AutoModeAnswers() {
    AutoSkillMonitor& monitor = m_env.monitor;
    monitor.sessionState = nullptr;
    monitor.sessionSkillId = nullptr;
    monitor.sessionBundleId = nullptr;
    monitor.onRetagSuggested = nullptr;
    monitor.onAutoStart = nullptr;
    monitor.onTagPromptSuggested = nullptr;
    m_env.skills.onSplitByHand = nullptr;
}

void AutoModeAnswers::changeSkill(const QString& skillId) {
    if (!m_env.flow.isIdle() && m_env.list.contains(skillId) &&
        m_env.flow.tracker().currentSkillId() != skillId)
        m_env.skills.select(skillId, SkillCommands::Origin::Auto);
}

void AutoModeAnswers::startSession(const QString& skillId) {
    if (!m_env.flow.isIdle() || !m_env.list.contains(skillId)) return;
    // Auto mode reads the idle counter, which is still low just after the key that locked the
    // screen.
    if (m_env.flow.idle().screensSleep()) return;
    m_env.skills.select(skillId, SkillCommands::Origin::Auto);
    m_env.flow.toggle(SessionCause::AutoMode);
    // When the idle threshold is shorter than auto mode's own delay, the user may already be away.
    // The monitor reports that absence again with its next sample; until then the session
    // would seem to run.
    if (m_env.flow.idle().isIdle()) m_env.flow.tracker().pause(m_env.clock.now());
}

void AutoModeAnswers::askForTag(const QString& bundleId, const QString& appName) {
    const bool isAsked = m_env.tagPrompt.show(
        appName, m_env.list.all(), !m_env.flow.isIdle(),
        autosuggestion::isBrowser(bundleId, appName),
        [self = QPointer(this), bundleId](const collaborators::TagPrompt::Outcome& outcome) {
            if (self) self->resolveTag(bundleId, outcome);
        });
    if (!isAsked) m_env.monitor.forgetPromptOffer(bundleId);
}

void AutoModeAnswers::resolveTag(const QString& bundleId,
                                 const collaborators::TagPrompt::Outcome& outcome) {
    using Kind = collaborators::TagPrompt::Outcome::Kind;
    AutoRules& rules = m_env.monitor.rules();
    if (outcome.kind == Kind::Ignore)
        rules.setRule(bundleId, QLatin1String(AutoRules::ignoreRuling));
    if (outcome.kind == Kind::Tagged && m_env.list.contains(outcome.skillId)) {
        rules.setRule(bundleId, outcome.skillId);
        if (!m_env.flow.isIdle() && m_env.flow.tracker().currentSkillId() != outcome.skillId) {
            m_env.flow.setSessionBundleId(bundleId);
            m_env.skills.select(outcome.skillId, SkillCommands::Origin::Auto);
        }
    }
    m_env.monitor.noteTagPromptResolved(bundleId);
}

void AutoModeAnswers::offerRule(const QString& chosenSkillId) {
    if (!settings::autoMode.read(m_env.preferences)) return;
    const auto application = m_env.monitor.frontmostAppForCorrection();
    if (!application) return;
    const QString bundleId = application->bundleId;
    const auto ruling = m_env.monitor.rules().ruling(bundleId);
    if (ruling == QLatin1String(AutoRules::ignoreRuling) || ruling == chosenSkillId) return;
    if (!m_env.monitor.mayOfferCorrectionPrompt(bundleId)) return;
    const bool isAsked = m_env.tagPrompt.showCorrection(
        application->name, m_env.list.by(chosenSkillId),
        [self = QPointer(this), bundleId, chosenSkillId](bool always) {
            if (!self) return;
            if (always) self->m_env.monitor.rules().setRule(bundleId, chosenSkillId);
            self->m_env.monitor.noteTagPromptResolved(bundleId);
        });
    if (!isAsked) m_env.monitor.forgetPromptOffer(bundleId);
}

} // namespace vantle
