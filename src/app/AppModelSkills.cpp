// The model's commands about skills, with the change of skill in the middle of a session.
#include "app/AppModel.h"
#include "app/PreferenceKeys.h"
#include "base/Bidi.h"
#include "platform/Preferences.h"
#include "tracking/SkillList.h"

#include <algorithm>

namespace vantle {

void AppModel::selectSkill(const QString& id, SkillSelectionOrigin origin) {
    setLastActionNote(std::nullopt);
    if (!m_env.skills.contains(id)) return;
    const QString previousId = m_selectedSkillId;
    select(id);
    if (!isIdle() && m_tracker.currentSkillId() != id) {
        splitSession(id, origin, previousId);
        return;
    }
    if (isIdle()) m_collaborators.notch->retag(m_env.skills.by(id), false);
}

void AppModel::splitSession(const QString& id, SkillSelectionOrigin origin,
                            const QString& previousId) {
    m_isRetagging = true;
    const auto ended = m_tracker.stop();
    if (!ended) {
        m_isRetagging = false;
        select(previousId);
        report(QStringLiteral("Couldn’t save before changing skill"));
        return;
    }
    const bool started = m_tracker.startAfter(*ended, m_env.skills.by(id));
    m_isRetagging = false;
    if (!started) {
        report(QStringLiteral("Saved the previous session but couldn’t start the new one"));
        m_sessionBundleId.reset();
        m_collaborators.autoSkill->clearSessionOverrides();
        m_collaborators.focusLink->sessionEnded();
        ensureIdleNotch();
        return;
    }
    if (origin != SkillSelectionOrigin::Human || isIdle()) return;
    m_collaborators.autoSkill->noteManualSkillChoice();
    offerRuleFromCorrection(id);
    const Skill endedSkill = m_env.skills.display(ended->skillId);
    m_collaborators.retagToast->show(endedSkill.name, endedSkill.hexRGB, ended->activeSeconds);
}

void AppModel::offerRuleFromCorrection(const QString& chosenSkillId) {
    if (!m_env.preferences.boolean(preferencekeys::autoModeEnabled).value_or(true)) return;
    collaborators::AutoSkill& autoSkill = *m_collaborators.autoSkill;
    const auto application = autoSkill.frontmostAppForCorrection();
    if (!application) return;
    const QString bundleId = application->bundleId;
    const auto ruling = autoSkill.ruling(bundleId);
    if (ruling == QLatin1String(collaborators::ignoreRuling) || ruling == chosenSkillId) return;
    if (!autoSkill.mayOfferCorrectionPrompt(bundleId)) return;
    const bool asked = m_collaborators.tagPrompt->showCorrection(
        application->name, m_env.skills.by(chosenSkillId),
        [self = QPointer(this), bundleId, chosenSkillId](bool always) {
            if (!self) return;
            if (always) self->m_collaborators.autoSkill->setRule(bundleId, chosenSkillId);
            self->m_collaborators.autoSkill->noteTagPromptResolved(bundleId);
        });
    if (!asked) autoSkill.forgetPromptOffer(bundleId);
}

void AppModel::addSkill(const QString& name, std::uint32_t hexRGB) {
    setLastActionNote(std::nullopt);
    const QString key = Skill::comparisonKey(name);
    const std::vector<Skill>& all = m_env.skills.all();
    const auto existing = std::ranges::find_if(
        all, [&](const Skill& skill) { return Skill::comparisonKey(skill.name) == key; });
    if (existing != all.end()) {
        if (isIdle()) select(existing->id);
        setLastActionNote(QStringLiteral("%1 already exists").arg(bidi::isolated(existing->name)));
        return;
    }
    const auto added = m_env.skills.addCustom(name, hexRGB);
    if (!added) {
        if (reportUnreadableSkills()) return;
        setLastActionNote(QStringLiteral("Couldn’t add mode · %1 modes max, %2 characters")
                              .arg(Skill::maxCount)
                              .arg(Skill::maxNameLength));
        return;
    }
    publishSkills();
    if (isIdle()) {
        select(added->id);
        showIdleNotchPrompt(false);
    }
    setLastActionNote(QStringLiteral("Added %1").arg(added->name));
}

void AppModel::updateSkill(QString id, const QString& name, std::uint32_t hexRGB) {
    setLastActionNote(std::nullopt);
    const QString key = Skill::comparisonKey(name);
    const bool taken = std::ranges::any_of(m_env.skills.all(), [&](const Skill& skill) {
        return skill.id != id && Skill::comparisonKey(skill.name) == key;
    });
    if (taken) {
        setLastActionNote(QStringLiteral("That mode already exists"));
        return;
    }
    const auto updated = m_env.skills.update(id, name, hexRGB);
    if (!updated) {
        if (reportUnreadableSkills()) return;
        setLastActionNote(QStringLiteral("Couldn’t save mode · names are 1 to %1 characters")
                              .arg(Skill::maxNameLength));
        return;
    }
    publishSkills();
    if (m_tracker.currentSkillId() == id)
        m_collaborators.notch->retag(*updated, true);
    else
        showIdleNotchPrompt(false);
    setLastActionNote(QStringLiteral("Saved %1").arg(updated->name));
}

void AppModel::deleteSkill(QString id) {
    setLastActionNote(std::nullopt);
    const QString name = m_env.skills.by(id).name;
    if (!m_env.skills.remove(id)) {
        if (reportUnreadableSkills()) return;
        setLastActionNote(QStringLiteral("Keep at least one skill"));
        return;
    }
    publishSkills();
    m_collaborators.autoSkill->removeRules(id);
    if (m_selectedSkillId == id || m_tracker.currentSkillId() == id)
        selectSkill(m_env.skills.all().front().id, SkillSelectionOrigin::Auto);
    showIdleNotchPrompt(false);
    setLastActionNote(QStringLiteral("Deleted %1").arg(name));
}

} // namespace vantle
