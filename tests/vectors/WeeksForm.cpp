// Which week the review is about, and whether it waits.
#include "app/WeeklyReview.h"
#include "fakes/MemoryPreferences.h"
#include "tracking/Settings.h"
#include "vectors/NeutralRecords.h"
#include "vectors/forms.h"

namespace vantle::vectors {

namespace {

QString seenKey(Date date, const Calendar& calendar) {
    return settings::reviewSeen.key(weeklyreview::weekOf(date, calendar));
}

QJsonValue week(const QJsonObject& input) {
    const Calendar calendar = calendarFromJson(input[QLatin1String("calendar")]);
    const Date date = dateFromJson(input[QLatin1String("date")]);
    const auto last = weeklyreview::lastWeekInterval(date, calendar);
    QJsonObject answer{{QStringLiteral("seenKey"), seenKey(date, calendar)},
                       {QStringLiteral("lastWeek"), QJsonValue::Null},
                       {QStringLiteral("seenKeyOfLastWeek"), QJsonValue::Null}};
    if (last) {
        answer[QLatin1String("lastWeek")] =
            QJsonArray{instantText(last->start), instantText(last->end)};
        answer[QLatin1String("seenKeyOfLastWeek")] = seenKey(last->start, calendar);
    }
    return answer;
}

QJsonValue ready(const QJsonObject& input) {
    const Calendar calendar = calendarFromJson(input[QLatin1String("calendar")]);
    fakes::MemoryPreferences preferences;
    for (const QJsonValue& key : input[QLatin1String("seenKeys")].toArray())
        preferences.setBoolean(key.toString(), true);
    const std::vector<Session> sessions = sessionsFromJson(input[QLatin1String("sessions")]);
    const Date now = dateFromJson(input[QLatin1String("now")]);
    const auto week = weeklyreview::unseenLastWeek(now, calendar, preferences);
    return QJsonObject{
        {QStringLiteral("ready"), week && weeklyreview::holdsAReview(sessions, *week)}};
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
