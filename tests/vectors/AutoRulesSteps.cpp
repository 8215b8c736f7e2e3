#include "vectors/AutoRulesSteps.h"

#include "tracking/JsonForm.h"
#include "tracking/Settings.h"
#include "vectors/NeutralRecords.h"
#include "vectors/Script.h"

namespace vantle::vectors {

void GivenSkills::set(const QJsonValue& skills) {
    m_folder.put(QStringLiteral("skills.json"),
                 FileImage{json::encode(skillsFromJson(skills)), 0600});
    settings::skillsMigrationVersion.write(m_preferences, SkillList::currentMigrationVersion);
    m_skills.emplace(m_folder.paths(), m_queue, m_preferences);
}

std::optional<QJsonValue> performOnRules(AutoRules& rules, const QJsonObject& event) {
    const QString op = operation(event);
    const QString bundleId = event[QLatin1String("bundleId")].toString();
    if (op == QLatin1String("ruling")) return toJson(rules.ruling(bundleId));
    if (op == QLatin1String("isAutomatic")) return rules.isAutomaticallyCategorized(bundleId);
    if (op == QLatin1String("setRule")) {
        const QJsonValue ruling = event[QLatin1String("ruling")];
        rules.setRule(bundleId,
                      ruling.isString() ? std::optional(ruling.toString()) : std::nullopt);
    } else if (op == QLatin1String("forgetApp")) {
        rules.forgetApp(bundleId);
    } else if (op == QLatin1String("removeRules")) {
        rules.removeRules(event[QLatin1String("skillId")].toString());
    } else {
        return std::nullopt;
    }
    return QJsonValue(QJsonValue::Undefined);
}

QJsonValue toJson(const std::vector<SeenApp>& apps) {
    QJsonArray list;
    for (const SeenApp& app : apps)
        list << QJsonObject{{QStringLiteral("bundleId"), app.bundleId},
                            {QStringLiteral("name"), app.name},
                            {QStringLiteral("lastSeenAt"), epochSeconds(app.lastSeenAt)}};
    return list;
}

QJsonObject describedRules(const AutoRules& rules) {
    QJsonObject ruling;
    for (auto rule = rules.rules().begin(); rule != rules.rules().end(); ++rule)
        ruling[rule.key()] = rule.value();
    QStringList automatic = rules.automaticRuleBundleIds().values();
    automatic.sort();
    return {{QStringLiteral("rules"), ruling},
            {QStringLiteral("automatic"), QJsonArray::fromStringList(automatic)},
            {QStringLiteral("seenApps"), toJson(rules.seenApps())}};
}

void addChanges(const QJsonObject& now, QJsonObject& known, QJsonObject& step) {
    for (const QString& key : now.keys()) {
        if (known.contains(key) && known[key] == now[key]) continue;
        known[key] = now[key];
        step[key] = now[key];
    }
}

} // namespace vantle::vectors
