// dwell_engine: auto mode over a desktop, a session and a clock that a script moves.
#include "fakes/FakeFrontmostApp.h"
#include "fakes/FakeIdleSource.h"
#include "sensing/AutoSkillMonitor.h"
#include "vectors/AutoRulesSteps.h"
#include "vectors/NeutralRecords.h"
#include "vectors/Script.h"
#include "vectors/forms.h"

#include <utility>

namespace vantle::vectors {

namespace {

std::optional<Application> applicationFromJson(const QJsonValue& value) {
    if (!value.isObject()) return std::nullopt;
    return Application{value[QLatin1String("bundleId")].toString(),
                       value[QLatin1String("name")].toString()};
}

std::optional<QString> textFromJson(const QJsonValue& value) {
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

QJsonValue toJson(const std::optional<Application>& app) {
    if (!app) return QJsonValue::Null;
    return QJsonObject{{QStringLiteral("bundleId"), app->bundleId},
                       {QStringLiteral("name"), app->name}};
}

struct GivenSession {
    TrackerCore::State state = TrackerCore::State::Idle;
    std::optional<QString> skillId;
    std::optional<QString> bundleId;

    explicit GivenSession(const QJsonObject& value)
        : skillId(textFromJson(value[QLatin1String("skillId")])) {
        const QString name = value[QLatin1String("state")].toString();
        if (name == QLatin1String("running")) state = TrackerCore::State::Running;
        if (name == QLatin1String("paused")) state = TrackerCore::State::Paused;
        if (state != TrackerCore::State::Idle)
            bundleId = textFromJson(value[QLatin1String("bundleId")]);
    }
};

class DwellEngineWorld {
public:
    explicit DwellEngineWorld(const QJsonObject& input)
        : m_time(dateFromEpoch(input[QLatin1String("now")].toDouble()))
        , m_session(input[QLatin1String("session")].toObject()) {
        m_time.attach(m_queue);
        m_skills.set(input[QLatin1String("skills")]);
        m_folder.put(QStringLiteral("auto-rules.json"),
                     imageFromJson(input[QLatin1String("file")]));
        const QJsonObject preferences = input[QLatin1String("prefs")].toObject();
        for (const QString& key : preferences.keys())
            setPreference(key, preferences[key]);
        m_frontmost.application = applicationFromJson(input[QLatin1String("frontmost")]);
        setIdle(input[QLatin1String("idle")].toObject());
        m_engine.emplace(AutoSkillMonitor::Environment{
            m_time, m_time, m_queue, m_folder.paths(), m_preferences, m_skills.list(), m_frontmost,
            m_source, input[QLatin1String("ownBundleId")].toString()});
        m_engine->sessionState = [this] { return m_session.state; };
        m_engine->sessionSkillId = [this] { return m_session.skillId; };
        m_engine->sessionBundleId = [this] { return m_session.bundleId; };
        setHooks(input[QLatin1String("hooks")].toObject());
    }

    QJsonObject perform(const QJsonObject& event) {
        const QJsonValue result = resultOf(event);
        m_time.settle();
        QJsonObject step{
            {QStringLiteral("events"), std::exchange(m_calls, {})},
            {QStringLiteral("running"), m_engine->isRunning()},
            {QStringLiteral("now"), epochSeconds(m_time.now())},
        };
        if (!result.isUndefined()) step[QLatin1String("result")] = result;
        addChanges(describedRules(m_engine->rules()), m_known, step);
        return step;
    }

private:
    QJsonValue resultOf(const QJsonObject& event) {
        const QString op = operation(event);
        if (op == QLatin1String("frontmostAppForCorrection"))
            return toJson(m_engine->frontmostAppForCorrection());
        if (op == QLatin1String("mayOfferCorrectionPrompt"))
            return m_engine->mayOfferCorrectionPrompt(event[QLatin1String("bundleId")].toString());
        if (const auto result = performOnRules(m_engine->rules(), event)) return *result;
        return moveWorld(op, event) || act(op, event) ? QJsonValue(QJsonValue::Undefined)
                                                      : unknown(op);
    }

    bool moveWorld(const QString& op, const QJsonObject& event) {
        if (passTime(m_time, event)) return true;
        if (op == QLatin1String("activate"))
            m_frontmost.activate(applicationFromJson(event[QLatin1String("app")]));
        else if (op == QLatin1String("front"))
            m_frontmost.application = applicationFromJson(event[QLatin1String("app")]);
        else if (op == QLatin1String("pref"))
            setPreference(event[QLatin1String("key")].toString(), event[QLatin1String("value")]);
        else if (op == QLatin1String("session"))
            m_session = GivenSession(event);
        else if (op == QLatin1String("idle"))
            setIdle(event);
        else if (op == QLatin1String("hooks"))
            setHooks(event[QLatin1String("set")].toObject());
        else if (op == QLatin1String("setSkills"))
            m_skills.set(event[QLatin1String("skills")]);
        else
            return false;
        return true;
    }

    bool act(const QString& op, const QJsonObject& event) {
        const QString bundleId = event[QLatin1String("bundleId")].toString();
        if (op == QLatin1String("refreshFromDefaults"))
            m_engine->refreshFromDefaults();
        else if (op == QLatin1String("noteManualSkillChoice"))
            m_engine->noteManualSkillChoice();
        else if (op == QLatin1String("clearSessionOverrides"))
            m_engine->clearSessionOverrides();
        else if (op == QLatin1String("noteTagPromptResolved"))
            m_engine->noteTagPromptResolved(bundleId);
        else if (op == QLatin1String("forgetPromptOffer"))
            m_engine->forgetPromptOffer(bundleId);
        else if (op == QLatin1String("eraseAllData"))
            m_engine->eraseAllData();
        else
            return false;
        return true;
    }

    void setPreference(const QString& key, const QJsonValue& value) {
        if (value.isBool())
            m_preferences.setBoolean(key, value.toBool());
        else
            m_preferences.remove(key);
    }

    void setIdle(const QJsonObject& counter) {
        const double value = counter[QLatin1String("value")].toDouble();
        if (counter[QLatin1String("mode")].toString() == QLatin1String("grow"))
            m_source.growFrom(value);
        else
            m_source.fix(value);
    }

    /// Each callback is set unless the case says false.
    void setHooks(const QJsonObject& hooks) {
        const auto isSet = [&](const char* name) {
            return hooks[QLatin1String(name)].toBool(true);
        };
        m_engine->onRetagSuggested = {};
        m_engine->onAutoStart = {};
        m_engine->onTagPromptSuggested = {};
        if (isSet("retag"))
            m_engine->onRetagSuggested = [this](const QString& skillId) {
                note({QStringLiteral("retag"), skillId});
            };
        if (isSet("autoStart"))
            m_engine->onAutoStart = [this](const QString& skillId) {
                note({QStringLiteral("autoStart"), skillId});
            };
        if (isSet("tagPrompt"))
            m_engine->onTagPromptSuggested = [this](const QString& bundleId,
                                                    const QString& appName) {
                note({QStringLiteral("tagPrompt"), bundleId, appName});
            };
    }

    void note(const QJsonArray& call) {
        m_calls << QJsonObject{{QStringLiteral("at"), epochSeconds(m_time.now())},
                               {QStringLiteral("call"), call}};
    }

    fakes::VirtualTime m_time;
    fakes::ManualQueue m_queue;
    DataFolder m_folder;
    GivenSkills m_skills{m_folder, m_queue};
    fakes::MemoryPreferences m_preferences;
    fakes::FakeFrontmostApp m_frontmost;
    fakes::FakeIdleSource m_source{m_time};
    GivenSession m_session;
    std::optional<AutoSkillMonitor> m_engine;
    QJsonArray m_calls;
    QJsonObject m_known;
};

} // namespace

Form dwellEngineForm() {
    Form form;
    form.name = QStringLiteral("dwell_engine");
    form.answer = [](const Case& item) {
        DwellEngineWorld world(item.input);
        return playScript(item, [&](const QJsonObject& event) { return world.perform(event); });
    };
    form.comparison.ignoredKeys = {QStringLiteral("debug")};
    return form;
}

} // namespace vantle::vectors
