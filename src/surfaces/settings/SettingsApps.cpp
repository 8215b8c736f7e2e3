// The applications part of the settings model.
#include "app/AppModel.h"
#include "base/Words.h"
#include "sensing/AutoRules.h"
#include "surfaces/settings/SettingsView.h"

#include <algorithm>

namespace vantle {

namespace {

/// The menu entries after the skills.
enum AfterSkills { Ignore, NotSet };

} // namespace

SeenAppRows::Row SettingsView::rowOf(const SeenApp& app) const {
    const std::vector<Skill>& skills = m_env.model.skills();
    const int count = static_cast<int>(skills.size());
    const auto ruling = m_env.rules.ruling(app.bundleId);
    SeenAppRows::Row row;
    row.bundleId = app.bundleId;
    row.name = app.name;
    row.choice = count + NotSet;
    if (!ruling) return row;
    row.hasChoice = true;
    row.isAutomatic = m_env.rules.isAutomaticallyCategorized(app.bundleId);
    row.choice = count + Ignore;
    const auto skill = std::ranges::find(skills, *ruling, &Skill::id);
    if (skill == skills.end()) return row;
    row.choice = static_cast<int>(skill - skills.begin());
    row.hexRGB = skill->hexRGB;
    return row;
}

void SettingsView::refreshApps() {
    std::vector<SeenAppRows::Row> rows;
    for (const SeenApp& app : m_env.rules.seenAppsByRecency())
        rows.push_back(rowOf(app));
    // Before the rows, which refer to the choices by index.
    Q_EMIT appsChanged();
    m_apps.setRows(rows);
    Q_EMIT appsChanged();
}

QString SettingsView::appsNote() const {
    return m_apps.rowCount() == 0
               ? Words::tr("Apps you use will appear here once Auto mode is on.")
               : Words::tr("Sparkles means Vantle categorized the app locally. Change any choice, "
                           "or remove an app with ×. Browsers stay unassigned because their "
                           "purpose is ambiguous.");
}

QList<QString> SettingsView::appChoices() const {
    QList<QString> choices;
    for (const Skill& skill : m_env.model.skills())
        choices << skill.name;
    return choices << Words::tr("Ignore") << Words::tr("Not set");
}

QString SettingsView::appsFailure() const {
    return m_env.rules.persistenceError().value_or(QString());
}

void SettingsView::chooseSkill(const QString& bundleId, int choice) {
    const std::vector<Skill>& skills = m_env.model.skills();
    const int count = static_cast<int>(skills.size());
    if (choice < 0 || choice > count + NotSet) return;
    if (choice == count + NotSet)
        m_env.rules.setRule(bundleId, std::nullopt);
    else if (choice == count + Ignore)
        m_env.rules.setRule(bundleId, QLatin1String(AutoRules::ignoreRuling));
    else
        m_env.rules.setRule(bundleId, skills[static_cast<std::size_t>(choice)].id);
}

// By value: the id may be in the row that this removes.
void SettingsView::forgetApp(QString bundleId) { m_env.rules.forgetApp(bundleId); }

} // namespace vantle
