// How durations read in each of the styles. Grouping is that of en_US.
#include "fakes/MemoryPreferences.h"
#include "tracking/DashFormat.h"
#include "tracking/Settings.h"
#include "vectors/NeutralRecords.h"
#include "vectors/forms.h"

namespace vantle::vectors {

namespace {

/// What `write` makes of the case in each style.
template <typename Write>
QJsonValue perStyle(Write write) {
    QJsonObject texts;
    for (const DurationStyle style : durationstyle::all)
        texts[durationstyle::rawValue(style)] = write(style);
    return texts;
}

QJsonValue statValue(double hours) {
    return perStyle([&](DurationStyle style) {
        const dashformat::StatValue stat = dashformat::statValue(hours, style);
        return QJsonObject{{QStringLiteral("value"), stat.value},
                           {QStringLiteral("unit"), stat.unit}};
    });
}

QJsonValue currentStyle(const QJsonValue& stored) {
    fakes::MemoryPreferences preferences;
    if (stored.isString()) preferences.setString(settings::durationStyle.key(), stored.toString());
    return QJsonObject{{QStringLiteral("style"),
                        durationstyle::rawValue(settings::durationStyle.read(preferences))}};
}

/// As a list of objects where the case has `styles`, else as three lists.
QJsonValue styles(const QJsonObject& expect) {
    QJsonArray ids, labels, samples, all;
    for (const DurationStyle style : durationstyle::all) {
        const QString id = durationstyle::rawValue(style);
        const QString label = durationstyle::label(style);
        const QString sample = durationstyle::sample(style);
        ids << id;
        labels << label;
        samples << sample;
        all << QJsonObject{{QStringLiteral("id"), id},
                           {QStringLiteral("label"), label},
                           {QStringLiteral("sample"), sample}};
    }
    if (expect.contains(QLatin1String("styles")))
        return QJsonObject{{QStringLiteral("styles"), all}};
    return QJsonObject{{QStringLiteral("ids"), ids},
                       {QStringLiteral("labels"), labels},
                       {QStringLiteral("samples"), samples}};
}

QJsonValue answer(const Case& item) {
    const double hours = item.input[QLatin1String("hours")].toDouble();
    const std::int64_t seconds = item.input[QLatin1String("seconds")].toInteger();
    if (item.kind == QLatin1String("clock"))
        return QJsonObject{{QStringLiteral("text"), dashformat::clock(seconds)}};
    if (item.kind == QLatin1String("statValue")) return statValue(hours);
    if (item.kind == QLatin1String("inlineHours"))
        return perStyle([&](DurationStyle s) { return dashformat::inlineHours(hours, s); });
    if (item.kind == QLatin1String("sessionDuration"))
        return perStyle([&](DurationStyle s) { return dashformat::sessionDuration(seconds, s); });
    if (item.kind == QLatin1String("nextMilestone"))
        return QJsonObject{{QStringLiteral("hours"), dashformat::nextMilestone(hours)}};
    if (item.kind == QLatin1String("currentStyle"))
        return currentStyle(item.input[QLatin1String("stored")]);
    if (item.kind == QLatin1String("styles")) return styles(item.expect.toObject());
    return unknown(item.kind);
}

} // namespace

Form durationsForm() {
    Form form;
    form.name = QStringLiteral("durations");
    form.answer = answer;
    return form;
}

} // namespace vantle::vectors
