#include "app/SkillCommands.h"

#include "app/ActionNote.h"
#include "app/SessionFlow.h"
#include "app/SessionSurfaces.h"
#include "base/Bidi.h"
#include "base/Words.h"
#include "sensing/AutoSkillMonitor.h"
#include "tracking/SkillList.h"

#include <algorithm>

namespace vantle {

void SkillCommands::load() {
    reportUnreadable();
    m_env.flow.restoreChoice();
}

void SkillCommands::resetAfterErase() {
    m_env.list.resetAfterErase();
    m_env.flow.chooseUnremembered(m_env.list.all().front().id);
}

void SkillCommands::select(const QString& id, Origin origin) {
    SessionFlow& flow = m_env.flow;
    m_env.note.clear();
    if (!m_env.list.contains(id)) return;
    const QString previousId = flow.selectedSkillId();
    flow.choose(id);
    if (flow.isIdle())
        m_env.surfaces.showChoice(m_env.list.by(id));
    else if (flow.tracker().currentSkillId() != id)
        split(id, origin, previousId);
}

void SkillCommands::split(const QString& id, Origin origin, const QString& previousId) {
    const auto [ended, hasStarted] = m_env.flow.split(m_env.list.by(id));
    if (!ended) {
        m_env.flow.choose(previousId);
        m_env.note.report(Words::tr("Couldn’t save before changing skill"));
        return;
    }
    if (!hasStarted) {
        m_env.note.report(Words::tr("Saved the previous session but couldn’t start the new one"));
        m_env.flow.closeBrokenSplit();
        return;
    }
    if (origin != Origin::Human || m_env.flow.isIdle()) return;
    m_env.autoSkill.noteManualSkillChoice();
    if (onSplitByHand) onSplitByHand(id);
    m_env.surfaces.showSavedTime(*ended);
}

void SkillCommands::add(const QString& name, std::uint32_t hexRGB) {
    m_env.note.clear();
    const QString key = Skill::comparisonKey(name);
    const std::vector<Skill>& all = m_env.list.all();
    const auto existing = std::ranges::find_if(
        all, [&](const Skill& skill) { return Skill::comparisonKey(skill.name) == key; });
    if (existing != all.end()) {
        if (m_env.flow.isIdle()) m_env.flow.choose(existing->id);
        m_env.note.say(Words::tr("%1 already exists").arg(bidi::isolated(existing->name)));
        return;
    }
    const auto added = m_env.list.addCustom(name, hexRGB);
    if (!added) {
        if (reportUnreadable()) return;
        m_env.note.say(
            Words::tr("Couldn’t add mode · %1 modes max, %2 characters")
                .arg(QString::number(Skill::maxCount), QString::number(Skill::maxNameLength)));
        return;
    }
    if (m_env.flow.isIdle()) {
        m_env.flow.choose(added->id);
        m_env.flow.showIdlePrompt();
    }
    m_env.note.say(Words::tr("Added %1").arg(bidi::isolated(added->name)));
}

void SkillCommands::update(QString id, const QString& name, std::uint32_t hexRGB) {
    m_env.note.clear();
    const QString key = Skill::comparisonKey(name);
    const bool taken = std::ranges::any_of(m_env.list.all(), [&](const Skill& skill) {
        return skill.id != id && Skill::comparisonKey(skill.name) == key;
    });
    if (taken) {
        m_env.note.say(Words::tr("That mode already exists"));
        return;
    }
    const auto updated = m_env.list.update(id, name, hexRGB);
    if (!updated) {
        if (reportUnreadable()) return;
        m_env.note.say(Words::tr("Couldn’t save mode · names are 1 to %1 characters")
                           .arg(Skill::maxNameLength));
        return;
    }
    if (m_env.flow.tracker().currentSkillId() == id)
        m_env.surfaces.showNewSkill(*updated);
    else
        m_env.flow.showIdlePrompt();
    m_env.note.say(Words::tr("Saved %1").arg(bidi::isolated(updated->name)));
}

void SkillCommands::remove(QString id) {
    m_env.note.clear();
    const QString name = m_env.list.by(id).name;
    if (!m_env.list.remove(id)) {
        if (reportUnreadable()) return;
        m_env.note.say(Words::tr("Keep at least one skill"));
        return;
    }
    m_env.autoSkill.rules().removeRules(id);
    if (m_env.flow.selectedSkillId() == id || m_env.flow.tracker().currentSkillId() == id)
        select(m_env.list.all().front().id, Origin::Auto);
    m_env.flow.showIdlePrompt();
    m_env.note.say(Words::tr("Deleted %1").arg(bidi::isolated(name)));
}

bool SkillCommands::reportUnreadable() {
    const auto& error = m_env.list.readError();
    if (!error) return false;
    m_env.note.say(
        Words::tr(
            "Couldn’t read your modes. Check folder permissions, then start Vantle again. (%1)")
            .arg(error->description()));
    return true;
}

} // namespace vantle
