// The list of skills: names, seeds, and scripts over its file.
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"
#include "vectors/DataFolder.h"
#include "vectors/NeutralRecords.h"
#include "vectors/Script.h"
#include "vectors/forms.h"

#include <QMap>

namespace vantle::vectors {

namespace {

class SkillsWorld {
public:
    explicit SkillsWorld(const QJsonObject& input) {
        m_folder.put(m_file, imageFromJson(input[QLatin1String("file")]));
        const QJsonValue version = input[QLatin1String("migrationVersion")];
        if (version.isDouble()) m_preferences.setInteger(m_versionKey, version.toInteger());
        for (const QJsonValue& fault : input[QLatin1String("faults")].toArray())
            m_folder.setFault(fault.toString(), true);
        reload();
    }

    /// The state after the list was read.
    QJsonObject load() {
        static_cast<void>(m_skills->all());
        return state();
    }

    QJsonObject perform(const QJsonObject& event) {
        const QJsonValue result = perform(operation(event), event);
        QJsonObject step = load();
        step[QLatin1String("result")] = result;
        return step;
    }

private:
    void reload() { m_skills.emplace(m_folder.paths(), m_queue, m_preferences); }

    QJsonValue perform(const QString& operation, const QJsonObject& event) {
        const QString id = event[QLatin1String("id")].toString();
        const QString name = event[QLatin1String("name")].toString();
        const auto color = static_cast<std::uint32_t>(event[QLatin1String("hexRGB")].toInteger());
        if (operation == QLatin1String("addCustom"))
            return toJson(m_skills->addCustom(name, color));
        if (operation == QLatin1String("update")) return toJson(m_skills->update(id, name, color));
        if (operation == QLatin1String("delete")) return m_skills->remove(id);
        if (operation == QLatin1String("by")) return toJson(m_skills->by(id));
        if (operation == QLatin1String("display")) return toJson(m_skills->display(id));
        if (operation == QLatin1String("resetAfterErase"))
            m_skills->resetAfterErase();
        else if (operation == QLatin1String("removeFile"))
            m_folder.put(m_file, std::nullopt);
        else if (operation == QLatin1String("reload"))
            reload();
        else if (operation == QLatin1String("fault") && DataFolder::knows(name))
            m_folder.setFault(name, event[QLatin1String("on")].toBool());
        else
            return unknown(operation);
        return QJsonValue::Null;
    }

    QJsonObject state() {
        const auto version = m_preferences.integer(m_versionKey);
        return {{QStringLiteral("all"), toJson(m_skills->all())},
                {QStringLiteral("migrationVersion"),
                 version ? QJsonValue(*version) : QJsonValue(QJsonValue::Null)},
                {QStringLiteral("file"), imageToJson(m_folder.image(m_file))}};
    }

    const QString m_file = QStringLiteral("skills.json");
    const QString m_versionKey = settings::skillsMigrationVersion.key();
    DataFolder m_folder;
    fakes::ManualQueue m_queue;
    fakes::MemoryPreferences m_preferences;
    std::optional<SkillList> m_skills;
};

QJsonValue script(const Case& item) {
    SkillsWorld world(item.input);
    return playScript(
        item, [&](const QJsonObject& event) { return world.perform(event); },
        [&] { return world.load(); });
}

QJsonValue listOf(std::span<const Skill> skills) {
    return toJson(std::vector<Skill>(skills.begin(), skills.end()));
}

QJsonValue tables() {
    QJsonArray palette;
    for (const std::uint32_t color : Skill::palette)
        palette << qint64{color};
    return QJsonObject{{QStringLiteral("defaults"), listOf(Skill::defaults())},
                       {QStringLiteral("legacyDefaults"), listOf(Skill::legacyDefaults())},
                       {QStringLiteral("palette"), palette}};
}

QJsonValue answer(const Case& item) {
    const auto given = [&](const char* key) { return item.input[QLatin1String(key)].toString(); };
    if (item.kind == QLatin1String("script")) return script(item);
    if (item.kind == QLatin1String("tables")) return tables();
    if (item.kind == QLatin1String("cleanedName"))
        return QJsonObject{{QStringLiteral("name"), Skill::cleanedName(given("name"))}};
    if (item.kind == QLatin1String("comparisonKey"))
        return QJsonObject{{QStringLiteral("key"), Skill::comparisonKey(given("name"))}};
    if (item.kind == QLatin1String("sameKey"))
        return QJsonObject{{QStringLiteral("same"),
                            Skill::comparisonKey(given("a")) == Skill::comparisonKey(given("b"))}};
    if (item.kind == QLatin1String("seedDefinition"))
        return QJsonObject{{QStringLiteral("skill"), toJson(Skill::seedDefinition(given("id")))}};
    return unknown(item.kind);
}

} // namespace

Form skillsForm() {
    Form form;
    form.name = QStringLiteral("skills");
    form.answer = answer;
    form.injects = DataFolder::knows;
    // The mode counts only where a case states it.
    form.comparison.partialObjects = {QStringLiteral("file")};
    return form;
}

} // namespace vantle::vectors
