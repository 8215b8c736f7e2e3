// What the totals, the wall, the badges and the groups come to.
#include "fakes/MemoryPreferences.h"
#include "tracking/DashFormat.h"
#include "tracking/SessionGroup.h"
#include "tracking/Settings.h"
#include "tracking/Totals.h"
#include "tracking/TrackerCore.h"
#include "vectors/NeutralRecords.h"
#include "vectors/forms.h"

namespace vantle::vectors {

namespace {

using Sessions = std::vector<Session>;

QJsonArray counts(const Sessions& sessions, Date now) {
    QJsonArray list;
    for (const Session& session : sessions)
        list << TrackerCore::countsInTotals(session, now);
    return list;
}

QJsonArray skillTotals(const Sessions& sessions, Date now, const std::vector<Skill>& skills) {
    QJsonArray list;
    for (const totals::SkillTotal& total : totals::perSkillTotals(sessions, now, skills))
        list << QJsonObject{{QStringLiteral("id"), total.skill.id},
                            {QStringLiteral("hours"), total.hours}};
    return list;
}

QJsonArray badges(const Sessions& sessions, Date now) {
    QJsonArray list;
    for (const totals::Badge& badge : totals::badges(sessions, now))
        list << QJsonObject{{QStringLiteral("hours"), badge.hours},
                            {QStringLiteral("earnedAt"), toJson(badge.earnedAt)}};
    return list;
}

QJsonObject run(const Skill& skill, std::int64_t count) {
    return {{QStringLiteral("id"), skill.id},
            {QStringLiteral("hexRGB"), static_cast<qint64>(skill.hexRGB)},
            {QStringLiteral("name"), skill.name},
            {QStringLiteral("count"), toJson(count)}};
}

QJsonArray runs(const Sessions& sessions, Date now, const std::vector<Skill>& skills) {
    QJsonArray list;
    for (const totals::DotRun& dots : totals::hourDotRuns(sessions, now, skills))
        list << run(dots.skill, dots.count);
    return list;
}

/// The runs that the dots, taken one by one, fall into.
QJsonArray runsOfDots(const std::vector<Skill>& dots) {
    QJsonArray list;
    for (std::size_t begin = 0, end = 0; begin < dots.size(); begin = end) {
        while (end < dots.size() && dots[end] == dots[begin])
            ++end;
        list << run(dots[begin], static_cast<std::int64_t>(end - begin));
    }
    return list;
}

QJsonArray groups(const Sessions& sessions) {
    QJsonArray list;
    for (const SessionGroup& group : SessionGroup::grouped(sessions))
        list << QJsonObject{{QStringLiteral("id"), toJson(group.id)},
                            {QStringLiteral("skillId"), group.skillId},
                            {QStringLiteral("endedAt"), toJson(group.endedAt)},
                            {QStringLiteral("seconds"), toJson(group.seconds)},
                            {QStringLiteral("allManual"), group.allManual}};
    return list;
}

QJsonValue log(const QJsonObject& input) {
    const Date now = dateFromJson(input[QLatin1String("now")]);
    const auto skills = skillsFromJson(input[QLatin1String("skills")]);
    const Sessions sessions = sessionsFromJson(input[QLatin1String("sessions")]);
    Calendar calendar;
    calendar.timeZone = input[QLatin1String("timeZone")].toString();
    calendar.firstWeekday = input[QLatin1String("firstWeekday")].toInt();

    const QJsonArray wall = runs(sessions, now, skills);
    const std::vector<Skill> dots = totals::hourDots(sessions, now, skills);
    const auto dotCount = static_cast<std::int64_t>(dots.size());
    if (wall != runsOfDots(dots) || dotCount != totals::hourDotCount(sessions, now))
        return unknown(QStringLiteral("dots, their runs and their count disagree"));
    return QJsonObject{
        {QStringLiteral("startOfToday"), toJson(calendar.startOfDay(now))},
        {QStringLiteral("startOfWeek"), toJson(calendar.startOfWeek(now))},
        {QStringLiteral("counts"), counts(sessions, now)},
        {QStringLiteral("hoursToday"), totals::hours(sessions, now, calendar).today},
        {QStringLiteral("hoursThisWeek"), totals::hours(sessions, now, calendar).thisWeek},
        {QStringLiteral("hoursAllTime"), totals::hours(sessions, now, calendar).allTime},
        {QStringLiteral("perSkillTotals"), skillTotals(sessions, now, skills)},
        {QStringLiteral("badges"), badges(sessions, now)},
        {QStringLiteral("hourDotCount"), toJson(dotCount)},
        {QStringLiteral("hourDotRuns"), wall},
        {QStringLiteral("groups"), groups(sessions)}};
}

QJsonValue goal(const QJsonObject& input) {
    fakes::MemoryPreferences preferences;
    const QJsonValue stored = input[QLatin1String("stored")];
    if (stored.isDouble()) settings::dailyGoalHours.write(preferences, stored.toDouble());
    const QJsonValue style = input[QLatin1String("style")];
    if (style.isString()) preferences.setString(settings::durationStyle.key(), style.toString());
    const double hours = settings::dailyGoalHours.read(preferences);
    return QJsonObject{{QStringLiteral("hours"), hours},
                       {QStringLiteral("label"),
                        dashformat::inlineHours(hours, settings::durationStyle.read(preferences))}};
}

QJsonValue answer(const Case& item) {
    if (item.kind == QLatin1String("log")) return log(item.input);
    if (item.kind == QLatin1String("goal")) return goal(item.input);
    return unknown(item.kind);
}

} // namespace

Form totalsForm() {
    Form form;
    form.name = QStringLiteral("totals");
    form.answer = answer;
    return form;
}

} // namespace vantle::vectors
