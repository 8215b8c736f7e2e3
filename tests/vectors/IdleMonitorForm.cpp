// idle_monitor: the away detection over a counter and screens that a script moves.
#include "fakes/FakeIdleSource.h"
#include "fakes/FakeScreenPower.h"
#include "fakes/MemoryPreferences.h"
#include "sensing/IdleMonitor.h"
#include "tracking/Settings.h"
#include "vectors/Script.h"
#include "vectors/forms.h"

#include <utility>

namespace vantle::vectors {
namespace {

class IdleMonitorDriver {
public:
    explicit IdleMonitorDriver(const QJsonObject& input)
        : m_time(dateFromEpoch(input[QLatin1String("now")].toDouble())) {
        setThreshold(input[QLatin1String("prefs")].toObject()[thresholdKey()]);
        setIdle(input[QLatin1String("idle")].toObject());
        m_monitor.onIdleBegan = [this](double seconds) {
            note({QStringLiteral("idleBegan"), seconds});
        };
        m_monitor.onActivityResumed = [this] { note({QStringLiteral("activityResumed")}); };
        m_monitor.onScreensSlept = [this] { note({QStringLiteral("screensSlept")}); };
    }

    [[nodiscard]] QJsonObject perform(const QJsonObject& event) {
        const QJsonValue result = resultOf(event);
        m_time.settle();
        QJsonObject step{
            {QStringLiteral("events"), std::exchange(m_calls, {})},
            {QStringLiteral("isIdle"), m_monitor.isIdle()},
            {QStringLiteral("started"), m_monitor.isStarted()},
            {QStringLiteral("coverageMinutes"), m_monitor.coverageMinutes(m_time.now())},
            {QStringLiteral("sampleCount"), static_cast<qint64>(m_monitor.sampleCount())},
            {QStringLiteral("now"), epochSeconds(m_time.now())},
        };
        if (!result.isUndefined()) step[QLatin1String("result")] = result;
        return step;
    }

private:
    static QLatin1String thresholdKey() { return settings::idleThresholdSeconds.key(); }

    QJsonValue resultOf(const QJsonObject& event) {
        const QString op = operation(event);
        if (op == QLatin1String("coverageMinutes")) {
            const Seconds offset(event[QLatin1String("offset")].toDouble());
            return m_monitor.coverageMinutes(m_time.now() + offset);
        }
        if (op == QLatin1String("wasActiveForLast")) {
            QJsonArray answers;
            for (const QJsonValue minutes : event[QLatin1String("minutes")].toArray())
                answers << m_monitor.wasActiveForLast(minutes.toInt());
            return answers;
        }
        if (op == QLatin1String("threshold")) return m_monitor.thresholdSeconds();
        return act(op, event) ? QJsonValue(QJsonValue::Undefined) : unknown(op);
    }

    bool act(const QString& op, const QJsonObject& event) {
        if (passTime(m_time, event)) return true;
        if (op == QLatin1String("start"))
            m_monitor.start();
        else if (op == QLatin1String("stop"))
            m_monitor.stop();
        else if (op == QLatin1String("idle"))
            setIdle(event);
        else if (op == QLatin1String("screensSleep"))
            m_screens.tellSleep();
        else if (op == QLatin1String("screensWake"))
            m_screens.tellWake();
        else if (op == QLatin1String("pref"))
            setThreshold(event[QLatin1String("value")]);
        else
            return false;
        return true;
    }

    void setThreshold(const QJsonValue& value) {
        if (value.isDouble())
            m_preferences.setNumber(thresholdKey(), value.toDouble());
        else
            m_preferences.remove(thresholdKey());
    }

    void setIdle(const QJsonObject& counter) {
        const double value = counter[QLatin1String("value")].toDouble();
        if (counter[QLatin1String("mode")].toString() == QLatin1String("grow"))
            m_source.growFrom(value);
        else
            m_source.fix(value);
    }

    void note(const QJsonArray& call) {
        m_calls << QJsonObject{{QStringLiteral("at"), epochSeconds(m_time.now())},
                               {QStringLiteral("call"), call}};
    }

    fakes::VirtualTime m_time;
    fakes::FakeIdleSource m_source{m_time};
    fakes::FakeScreenPower m_screens;
    fakes::MemoryPreferences m_preferences;
    QJsonArray m_calls;
    IdleMonitor m_monitor{m_time, m_time, m_source, m_screens, m_preferences};
};

} // namespace

Form idleMonitorForm() {
    Form form;
    form.name = QStringLiteral("idle_monitor");
    form.answer = [](const Case& item) {
        IdleMonitorDriver driver(item.input);
        return playScript(item, [&](const QJsonObject& event) { return driver.perform(event); });
    };
    return form;
}

} // namespace vantle::vectors
