// Which week the review is about, and whether it waits.
#include "app/WeeklyReview.h"
#include "base/Iso8601.h"
#include "fakes/MemoryPreferences.h"
#include "vectors/NeutralRecords.h"
#include "vectors/forms.h"

namespace vantle::vectors {

namespace {

Date instant(const QJsonValue& text) {
    return iso8601::parse(text.toString().toStdString()).value_or(Date());
}

QJsonValue instantText(Date date) {
    const auto text = iso8601::format(date);
    if (!text) return QJsonValue::Null;
    return QString::fromLatin1(text->data(), qsizetype(text->size()));
}

Calendar calendarFromJson(const QJsonObject& object) {
    return {
        object[QLatin1String("timeZone")].toString(), object[QLatin1String("firstWeekday")].toInt(),
        object[QLatin1String("minimalDays")].toInt(), object[QLatin1String("locale")].toString()};
}

/// A record as a line of the log has it, with its dates as texts.
Session sessionFromLine(const QJsonObject& object) {
    QJsonObject neutral = object;
    for (const auto key : {QLatin1String("startedAt"), QLatin1String("endedAt")})
        neutral[key] = toJson(instant(object[key]));
    return sessionFromJson(neutral);
}

QJsonValue week(const QJsonObject& input) {
    const Calendar calendar = calendarFromJson(input[QLatin1String("calendar")].toObject());
    const Date date = instant(input[QLatin1String("date")]);
    const auto last = weeklyreview::lastWeekInterval(date, calendar);
    QJsonObject answer{{QStringLiteral("seenKey"), weeklyreview::wrappedSeenKey(date, calendar)},
                       {QStringLiteral("lastWeek"), QJsonValue::Null},
                       {QStringLiteral("seenKeyOfLastWeek"), QJsonValue::Null}};
    if (last) {
        answer[QLatin1String("lastWeek")] =
            QJsonArray{instantText(last->start), instantText(last->end)};
        answer[QLatin1String("seenKeyOfLastWeek")] =
            weeklyreview::wrappedSeenKey(last->start, calendar);
    }
    return answer;
}

QJsonValue ready(const QJsonObject& input) {
    const Calendar calendar = calendarFromJson(input[QLatin1String("calendar")].toObject());
    fakes::MemoryPreferences preferences;
    for (const QJsonValue& key : input[QLatin1String("seenKeys")].toArray())
        preferences.setBoolean(key.toString(), true);
    std::vector<Session> sessions;
    for (const QJsonValue& item : input[QLatin1String("sessions")].toArray())
        sessions.push_back(sessionFromLine(item.toObject()));
    const Date now = instant(input[QLatin1String("now")]);
    return QJsonObject{{QStringLiteral("ready"),
                        weeklyreview::wrappedIsReady(sessions, now, calendar, preferences)}};
}

QJsonValue answer(const Case& item) {
    if (item.kind == QLatin1String("week")) return week(item.input);
    if (item.kind == QLatin1String("ready")) return ready(item.input);
    return unknown(item.kind);
}

} // namespace

Form weeksForm() {
    Form form;
    form.name = QStringLiteral("weeks");
    form.answer = answer;
    return form;
}

} // namespace vantle::vectors
