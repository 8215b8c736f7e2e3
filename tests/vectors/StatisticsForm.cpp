// The review of a period as a whole.
#include "review/stats/EarlierWeeks.h"
#include "vectors/NeutralRecords.h"
#include "vectors/NoteDigestJson.h"
#include "vectors/ReviewTextsJson.h"
#include "vectors/StatsJson.h"
#include "vectors/forms.h"

namespace vantle::vectors {

namespace {

QJsonValue instantOrNull(const std::optional<Date>& date) {
    return date ? instantText(*date) : QJsonValue::Null;
}

QJsonValue numberOrNull(const auto& number) {
    return number ? QJsonValue(*number) : QJsonValue::Null;
}

QJsonArray skillHours(const WrappedStats& stats) {
    QJsonArray list;
    for (const auto& [skill, hours] : stats.skillHours)
        list << QJsonObject{{QStringLiteral("skillId"), skill.id},
                            {QStringLiteral("name"), skill.name},
                            {QStringLiteral("hexRGB"), static_cast<qint64>(skill.hexRGB)},
                            {QStringLiteral("hours"), hours}};
    return list;
}

QJsonValue biggestDay(const WrappedStats& stats) {
    if (!stats.biggestDay) return QJsonValue::Null;
    return QJsonObject{{QStringLiteral("day"), instantText(stats.biggestDay->day)},
                       {QStringLiteral("hours"), stats.biggestDay->hours}};
}

QJsonArray hourDots(const WrappedStats& stats) {
    QJsonArray dots;
    for (const totals::DotRun& run : stats.hourDots)
        for (std::int64_t i = 0; i < run.count; ++i)
            dots << run.skill.id;
    return dots;
}

QJsonArray milestones(const WrappedStats& stats) {
    QJsonArray badges;
    for (const totals::Badge& badge : stats.milestones)
        badges << QJsonObject{{QStringLiteral("hours"), badge.hours},
                              {QStringLiteral("earnedAt"), instantText(badge.earnedAt)}};
    return badges;
}

void addPeriod(QJsonObject& answer, const WrappedStats& stats) {
    const auto top = stats.topSkill();
    answer[QLatin1String("sessionCount")] = stats.sessionCount;
    answer[QLatin1String("totalHours")] = stats.totalHours;
    answer[QLatin1String("skillHours")] = skillHours(stats);
    answer[QLatin1String("topSkill")] = top ? QJsonValue(top->name) : QJsonValue::Null;
    answer[QLatin1String("longest")] = stats.longest ? toJson(stats.longest->id) : QJsonValue::Null;
    answer[QLatin1String("biggestDay")] = biggestDay(stats);
    answer[QLatin1String("typicalStart")] = toJson(stats.typicalStart);
    answer[QLatin1String("startRhythm")] = toJson(stats.startRhythm);
    answer[QLatin1String("milestones")] = milestones(stats);
    answer[QLatin1String("verifiedHours")] = stats.verifiedHours;
    answer[QLatin1String("manualHours")] = stats.manualHours;
    answer[QLatin1String("notedSessionCount")] = stats.notedSessionCount;
    answer[QLatin1String("activeDays")] = stats.activeDays;
    answer[QLatin1String("noteDigest")] = toJson(stats.noteDigest);
    answer[QLatin1String("hourDots")] = hourDots(stats);
    answer[QLatin1String("goalHitDays")] = stats.goalHitDays;
    answer[QLatin1String("lastWeekHours")] = numberOrNull(stats.lastWeekHours);
    answer[QLatin1String("superlatives")] = toJson(stats.superlatives);
}

void addWholeLog(QJsonObject& answer, const WrappedStats& stats) {
    QJsonObject hours;
    QJsonObject colors;
    for (const WrappedStats::WorkedDay& worked : stats.workedDays) {
        const QString day = instantText(worked.day).toString();
        hours[day] = stats.dayHours(worked.day);
        colors[day] = static_cast<qint64>(stats.dayColor(worked.day).value());
    }
    QJsonArray years;
    for (const int year : stats.activeYears)
        years << year;
    answer[QLatin1String("dayHours")] = hours;
    answer[QLatin1String("dayColors")] = colors;
    answer[QLatin1String("activeYears")] = years;
}

/// What the high points are drawn from, without being shown itself.
QJsonObject inner(const WrappedStats& stats, const std::vector<Session>& sessions,
                  const WrappedSettings& settings) {
    std::optional<int> rank;
    if (wrappedperiod::isAWeek(stats.period)) {
        const Date start =
            wrappedperiod::start(stats.period, settings.now, settings.calendar).value();
        rank =
            EarlierWeeks(sessions, settings.now, start, settings.calendar).rankOf(stats.totalHours);
    }
    const auto days = wrappedperiod::daysElapsed(stats.period, settings.now, settings.calendar);
    return {{QStringLiteral("daysElapsed"), numberOrNull(days)},
            {QStringLiteral("weekRank"), numberOrNull(rank)}};
}

QJsonValue compute(const QJsonObject& input) {
    const WrappedSettings settings = reviewSettingsFromJson(input);
    const auto sessions = sessionsFromJson(input[QLatin1String("sessions")]);
    const auto period = wrappedperiod::fromId(input[QLatin1String("period")].toString()).value();
    const WrappedStats stats = WrappedStats::compute(sessions, period, settings);

    QJsonObject answer{{QStringLiteral("period"), wrappedperiod::id(stats.period)},
                       {QStringLiteral("start"), instantOrNull(wrappedperiod::start(
                                                     period, settings.now, settings.calendar))},
                       {QStringLiteral("end"),
                        instantOrNull(wrappedperiod::end(period, settings.now, settings.calendar))},
                       {QStringLiteral("persona"), toJson(stats.persona)},
                       {QStringLiteral("personaSessionCount"), stats.personaSessionCount},
                       {QStringLiteral("personaScope"), stats.personaScope},
                       {QStringLiteral("closingLine"), stats.closingLine(settings.durationStyle)},
                       {QStringLiteral("internal"), inner(stats, sessions, settings)}};
    addPeriod(answer, stats);
    addWholeLog(answer, stats);
    return answer;
}

QJsonValue answer(const Case& item) {
    return item.kind == QLatin1String("compute") ? compute(item.input) : unknown(item.kind);
}

} // namespace

Form statisticsForm() {
    Form form;
    form.name = QStringLiteral("statistics");
    form.answer = answer;
    form.comparison = withoutLocaleMarks();
    return form;
}

} // namespace vantle::vectors
