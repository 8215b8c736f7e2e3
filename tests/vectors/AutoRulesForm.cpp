// auto_rules: what is guessed of applications, and scripts over the memory of auto mode.
#include "sensing/AutoSuggestion.h"
#include "tracking/JsonWriting.h"
#include "vectors/AutoRulesSteps.h"
#include "vectors/NeutralRecords.h"
#include "vectors/Script.h"
#include "vectors/forms.h"

#include <QJsonDocument>

#include <map>

namespace vantle::vectors {

namespace {

const QString kFile = QStringLiteral("auto-rules.json");

/// The one text that a value has in the form of the data files.
void appendCanonical(QByteArray& out, const QJsonValue& value) {
    if (value.isString()) {
        json::writing::appendString(out, value.toString());
    } else if (value.isArray()) {
        out += '[';
        for (const QJsonValue entry : value.toArray()) {
            if (!out.endsWith('[')) out += ',';
            appendCanonical(out, entry);
        }
        out += ']';
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        std::map<QByteArray, QJsonValue> inByteOrder;
        for (const QString& key : object.keys())
            inByteOrder[key.toUtf8()] = object[key];
        out += '{';
        for (const auto& [key, member] : inByteOrder) {
            if (!out.endsWith('{')) out += ',';
            json::writing::appendString(out, QString::fromUtf8(key));
            out += ':';
            appendCanonical(out, member);
        }
        out += '}';
    } else {
        out += jsonText(value).toUtf8();
    }
}

/// The list of automatic rules stands for a set.
QJsonObject withSortedSet(QJsonObject content) {
    const QString key = QStringLiteral("automaticRuleBundleIds");
    if (!content[key].isArray()) return content;
    QStringList texts;
    for (const QJsonValue text : content[key].toArray())
        texts << text.toString();
    texts.sort();
    content[key] = QJsonArray::fromStringList(texts);
    return content;
}

QJsonValue describedFile(const std::optional<FileImage>& image) {
    if (!image) return QJsonValue::Null;
    const QJsonDocument content = QJsonDocument::fromJson(image->bytes);
    QByteArray canonical;
    appendCanonical(canonical, content.object());
    if (content.isObject() && canonical == image->bytes)
        return QJsonObject{{QStringLiteral("object"), withSortedSet(content.object())}};
    return QJsonObject{{QStringLiteral("image"), imageToJson(image)}};
}

/// Both sides, with the set in the order of its texts.
QJsonValue withSortedSets(const QJsonValue& value) {
    if (value.isArray()) {
        QJsonArray list;
        for (const QJsonValue entry : value.toArray())
            list << withSortedSets(entry);
        return list;
    }
    if (!value.isObject()) return value;
    QJsonObject object = withSortedSet(value.toObject());
    for (const QString& key : object.keys())
        object[key] = withSortedSets(object[key]);
    return object;
}

class AutoRulesWorld {
public:
    explicit AutoRulesWorld(const QJsonObject& input)
        : m_time(dateFromEpoch(input[QLatin1String("now")].toDouble())) {
        m_time.attach(m_queue);
        m_skills.set(input[QLatin1String("skills")]);
        m_folder.put(kFile, imageFromJson(input[QLatin1String("file")]));
        relaunch();
    }

    QJsonObject perform(const QJsonObject& event) {
        const QJsonValue result = resultOf(event);
        m_time.settle();
        QJsonObject step{{QStringLiteral("now"), epochSeconds(m_time.now())}};
        if (!result.isUndefined()) step[QLatin1String("result")] = result;
        QJsonObject now = describedRules(*m_rules);
        now[QLatin1String("persistenceError")] = describedError();
        now[QLatin1String("file")] = describedFile(m_folder.image(kFile));
        addChanges(now, m_known, step);
        return step;
    }

private:
    QJsonValue resultOf(const QJsonObject& event) {
        const QString op = operation(event);
        if (op == QLatin1String("seenAppsByRecency")) return toJson(m_rules->seenAppsByRecency());
        if (const auto result = performOnRules(*m_rules, event)) return *result;
        return act(op, event) ? QJsonValue(QJsonValue::Undefined) : unknown(op);
    }

    bool act(const QString& op, const QJsonObject& event) {
        const auto given = [&](const char* key) { return event[QLatin1String(key)].toString(); };
        if (passTime(m_time, event)) return true;
        if (op == QLatin1String("load"))
            m_rules->loadIfNeeded();
        else if (op == QLatin1String("recordSeen"))
            m_rules->recordSeen(given("bundleId"), given("name"));
        else if (op == QLatin1String("eraseAllData"))
            m_rules->eraseAllData();
        else if (op == QLatin1String("relaunch"))
            relaunch();
        else if (op == QLatin1String("setSkills"))
            m_skills.set(event[QLatin1String("skills")]);
        else if (op == QLatin1String("fault") && DataFolder::knows(given("name")))
            m_folder.setFault(given("name"), event[QLatin1String("on")].toBool());
        else
            return false;
        return true;
    }

    void relaunch() {
        m_rules.emplace(
            AutoRules::Environment{m_time, m_time, m_queue, m_folder.paths(), m_skills.list()});
    }

    /// Which of the two texts it is; the rest of them is the platform's.
    QJsonValue describedError() {
        const auto& error = m_rules->persistenceError();
        if (!error) return QJsonValue::Null;
        if (error->startsWith(QStringLiteral("Couldn’t save Auto mode choices: ")))
            return QStringLiteral("save");
        if (error->startsWith(QStringLiteral("Couldn’t erase Auto mode data: ")))
            return QStringLiteral("erase");
        return *error;
    }

    fakes::VirtualTime m_time;
    fakes::ManualQueue m_queue;
    DataFolder m_folder;
    GivenSkills m_skills{m_folder, m_queue};
    std::optional<AutoRules> m_rules;
    QJsonObject m_known;
};

QJsonValue answer(const Case& item) {
    const QString bundleId = item.input[QLatin1String("bundleId")].toString();
    const QString name = item.input[QLatin1String("name")].toString();
    if (item.kind == QLatin1String("isBrowser"))
        return QJsonObject{{QStringLiteral("browser"), autosuggestion::isBrowser(bundleId, name)}};
    if (item.kind == QLatin1String("suggest")) {
        const auto skills = skillsFromJson(item.input[QLatin1String("skills")]);
        return QJsonObject{{QStringLiteral("skillId"),
                            toJson(autosuggestion::suggestedSkillId(bundleId, name, skills))}};
    }
    if (item.kind != QLatin1String("script")) return unknown(item.kind);
    AutoRulesWorld world(item.input);
    return playScript(item, [&](const QJsonObject& event) { return world.perform(event); });
}

} // namespace

Form autoRulesForm() {
    Form form;
    form.name = QStringLiteral("auto_rules");
    form.answer = answer;
    form.injects = DataFolder::knows;
    form.comparison.normalized = withSortedSets;
    // The mode counts only where a case states it.
    form.comparison.partialObjects = {QStringLiteral("image")};
    return form;
}

} // namespace vantle::vectors
