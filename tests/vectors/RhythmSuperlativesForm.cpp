// When sessions begin, and the high points of a period.
#include "base/LocalTime.h"
#include "vectors/NeutralRecords.h"
#include "vectors/StatsJson.h"
#include "vectors/forms.h"

#include <QJsonDocument>
#include <QRegularExpression>

namespace vantle::vectors {

namespace {

QJsonValue typicalStart(const StartTimes& starts) {
    const auto minutes = starts.medianMinutes();
    QJsonValue labels = QJsonValue::Null;
    if (minutes)
        labels =
            QJsonObject{{QStringLiteral("en_US"), *starts.typicalStart(QStringLiteral("en_US"))},
                        {QStringLiteral("de_DE"), *starts.typicalStart(QStringLiteral("de_DE"))}};
    return QJsonObject{
        {QStringLiteral("medianMinutes"), minutes ? QJsonValue(*minutes) : QJsonValue::Null},
        {QStringLiteral("typicalStart"), labels}};
}

QJsonValue rhythm(const QJsonObject& input) {
    const auto sessions = sessionsFromJson(input[QLatin1String("sessions")]);
    LocalTime local(calendarFromJson(input[QLatin1String("calendar")]));
    StartTimes starts;
    for (const Session& session : sessions)
        starts.add(local.at(session.startedAt));
    return QJsonObject{{QStringLiteral("typicalStart"), typicalStart(starts)},
                       {QStringLiteral("startRhythm"), toJson(StartRhythm::compute(starts))}};
}

std::optional<int> optionalInt(const QJsonValue& value) {
    return value.isDouble() ? std::optional(value.toInt()) : std::nullopt;
}

QJsonValue superlatives(const QJsonObject& input) {
    SuperlativeFacts facts;
    facts.period = wrappedperiod::fromId(input[QLatin1String("period")].toString()).value();
    facts.totalHours = input[QLatin1String("totalHours")].toDouble();
    facts.activeDays = input[QLatin1String("activeDays")].toInt();
    facts.daysElapsed = optionalInt(input[QLatin1String("daysElapsed")]);
    facts.goalHitDays = input[QLatin1String("goalHitDays")].toInt();
    facts.biggestDayHours = input[QLatin1String("biggestDayHours")].toDouble();
    const QJsonValue longest = input[QLatin1String("longest")];
    if (longest.isObject()) facts.longest = sessionFromJson(longest);
    facts.weekRank = optionalInt(input[QLatin1String("weekRank")]);
    const auto style =
        durationstyle::fromRawValue(input[QLatin1String("durationStyle")].toString());
    return toJson(pickSuperlatives(facts, skillsFromJson(input[QLatin1String("skills")]),
                                   style.value_or(DurationStyle::Natural)));
}

QJsonValue answer(const Case& item) {
    if (item.kind == QLatin1String("rhythm")) return rhythm(item.input);
    if (item.kind == QLatin1String("superlatives")) return superlatives(item.input);
    return unknown(item.kind);
}

QJsonValue withoutLocale(const QJsonValue& value) {
    static const QRegularExpression wideBlank(QStringLiteral("[\\x{202F}\\x{A0}]"));
    static const QRegularExpression groupSign(
        QStringLiteral("(?<=\\d)[.,](?=\\d{3}([.,]\\d{3})* min)"));
    QString json =
        QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
    json.replace(wideBlank, QStringLiteral(" ")).remove(groupSign);
    return QJsonDocument::fromJson(json.toUtf8()).array().at(0);
}

} // namespace

Comparison withoutLocaleMarks() {
    Comparison comparison;
    comparison.normalized = withoutLocale;
    return comparison;
}

QJsonValue toJson(const std::optional<StartRhythm>& rhythm) {
    if (!rhythm) return QJsonValue::Null;
    QJsonArray counts;
    for (const int count : rhythm->counts)
        counts << count;
    return QJsonObject{{QStringLiteral("counts"), counts},
                       {QStringLiteral("peakHour"), rhythm->peakHour},
                       {QStringLiteral("headline"), rhythm->headline},
                       {QStringLiteral("detail"), toJson(rhythm->detail)}};
}

QJsonValue toJson(const std::vector<SuperlativeLine>& lines) {
    QJsonArray list;
    for (const SuperlativeLine& line : lines)
        list << QJsonObject{{QStringLiteral("icon"), line.icon},
                            {QStringLiteral("tintHex"), static_cast<qint64>(line.tintHex)},
                            {QStringLiteral("text"), line.text},
                            {QStringLiteral("score"), line.score}};
    return list;
}

Form rhythmSuperlativesForm() {
    Form form;
    form.name = QStringLiteral("rhythm_superlatives");
    form.answer = answer;
    form.comparison = withoutLocaleMarks();
    return form;
}

} // namespace vantle::vectors
