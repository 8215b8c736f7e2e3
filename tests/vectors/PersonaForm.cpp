// The persona of some sessions, and the tables behind it.
#include "vectors/NeutralRecords.h"
#include "vectors/StatsJson.h"
#include "vectors/forms.h"

#include <algorithm>

namespace vantle::vectors {

namespace {

using namespace builderpersona;

const QStringList kDayParts = {QStringLiteral("morning"), QStringLiteral("daylight"),
                               QStringLiteral("evening"), QStringLiteral("night"),
                               QStringLiteral("anytime")};
const QStringList kStyles = {QStringLiteral("marathon"), QStringLiteral("steady"),
                             QStringLiteral("sprint")};
const QStringList kFocuses = {QStringLiteral("focused"), QStringLiteral("multi"),
                              QStringLiteral("balanced")};

template <typename Axis>
Axis fromName(const QStringList& names, const QJsonValue& name) {
    return static_cast<Axis>(names.indexOf(name.toString()));
}

template <typename Axis>
QString nameOf(const QStringList& names, Axis axis) {
    return names.at(static_cast<qsizetype>(axis));
}

QJsonValue compute(const QJsonObject& input) {
    const Calendar calendar = calendarFromJson(input[QLatin1String("calendar")]);
    const auto sessions = sessionsFromJson(input[QLatin1String("sessions")]);
    const auto style =
        durationstyle::fromRawValue(input[QLatin1String("durationStyle")].toString());
    const auto persona =
        builderpersona::compute(refsTo(sessions), calendar, style.value_or(DurationStyle::Natural));
    if (!persona) return QJsonValue::Null;
    const Axes axes = builderpersona::axes(refsTo(sessions), calendar).value();
    QJsonObject answer = toJson(persona).toObject();
    answer[QLatin1String("axes")] =
        QJsonObject{{QStringLiteral("when"), nameOf(kDayParts, axes.when)},
                    {QStringLiteral("style"), nameOf(kStyles, axes.style)},
                    {QStringLiteral("focus"), nameOf(kFocuses, axes.focus)}};
    return answer;
}

QJsonObject ofName(const QString& name) {
    const Gradient colors = gradient(name);
    return {{QStringLiteral("startHex"), static_cast<qint64>(colors.start)},
            {QStringLiteral("endHex"), static_cast<qint64>(colors.end)},
            {QStringLiteral("symbol"), symbol(name)}};
}

QJsonValue named(const QJsonObject& input) {
    const auto when = fromName<DayPart>(kDayParts, input[QLatin1String("when")]);
    const QString name =
        builderpersona::name(when, fromName<Style>(kStyles, input[QLatin1String("style")]),
                             fromName<Focus>(kFocuses, input[QLatin1String("focus")]));
    QJsonObject answer = ofName(name);
    answer[QLatin1String("name")] = name;
    answer[QLatin1String("line")] = line(name, when);
    answer[QLatin1String("whenFact")] = whenFact(when);
    answer[QLatin1String("artwork")] = artworkName(name);
    return answer;
}

QJsonValue answer(const Case& item) {
    const QString name = item.input[QLatin1String("name")].toString();
    if (item.kind == QLatin1String("compute")) return compute(item.input);
    if (item.kind == QLatin1String("name")) return named(item.input);
    if (item.kind == QLatin1String("gradient")) return ofName(name);
    if (item.kind == QLatin1String("line")) {
        const auto when = fromName<DayPart>(kDayParts, item.input[QLatin1String("when")]);
        return QJsonObject{{QStringLiteral("line"), line(name, when)}};
    }
    return unknown(item.kind);
}

} // namespace

QJsonValue toJson(const std::optional<BuilderPersona>& persona) {
    if (!persona) return QJsonValue::Null;
    return QJsonObject{{QStringLiteral("name"), persona->name},
                       {QStringLiteral("line"), persona->line},
                       {QStringLiteral("whenFact"), persona->whenFact},
                       {QStringLiteral("paceFact"), persona->paceFact},
                       {QStringLiteral("startHex"), static_cast<qint64>(persona->startHex)},
                       {QStringLiteral("endHex"), static_cast<qint64>(persona->endHex)}};
}

Form personaForm() {
    Form form;
    form.name = QStringLiteral("persona");
    form.answer = answer;
    return form;
}

} // namespace vantle::vectors
