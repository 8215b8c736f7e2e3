#include "vectors/ReviewTextsJson.h"

#include "review/HoursCards.h"
#include "review/NotesCards.h"
#include "review/PersonaCard.h"
#include "review/RhythmCard.h"
#include "review/WhenCard.h"
#include "vectors/NeutralRecords.h"

#include <limits>

namespace vantle::vectors {

namespace {

/// A page does without a text that is empty.
QJsonValue textOrNull(const QString& text) {
    return text.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

QJsonArray texts(const QStringList& list) { return QJsonArray::fromStringList(list); }

QJsonValue toJson(const HeroCard& card) {
    return QJsonObject{
        {QStringLiteral("kicker"), card.kicker},     {QStringLiteral("lead"), card.lead},
        {QStringLiteral("hours"), card.hoursText},   {QStringLiteral("in"), card.inSentence},
        {QStringLiteral("sessions"), card.sessions}, {QStringLiteral("quiet"), texts(card.quiet)}};
}

QJsonValue toJson(const SkillsCard& card) {
    return QJsonObject{{QStringLiteral("kicker"), card.kicker},
                       {QStringLiteral("name"), card.top.name},
                       {QStringLiteral("hours"), card.top.hours},
                       {QStringLiteral("share"), card.top.share},
                       {QStringLiteral("breakdownKicker"), textOrNull(card.breakdownKicker)},
                       {QStringLiteral("more"), textOrNull(card.more)}};
}

QJsonValue toJson(const PersonaCard& card) {
    QJsonObject json{
        {QStringLiteral("kicker"), card.kicker},         {QStringLiteral("lead"), card.lead},
        {QStringLiteral("name"), textOrNull(card.name)}, {QStringLiteral("line"), card.line},
        {QStringLiteral("facts"), texts(card.facts)},    {QStringLiteral("quiet"), card.quiet}};
    if (card.name.isEmpty()) return json;
    QJsonArray colors;
    for (const QColor& color : card.celebrationColors)
        colors << static_cast<qint64>(color.rgb() & 0xFFFFFF);
    json[QLatin1String("celebrationColors")] = colors;
    json[QLatin1String("symbol")] = card.symbol;
    return json;
}

QJsonValue toJson(const RhythmCard& card) {
    return QJsonObject{{QStringLiteral("kicker"), card.kicker},
                       {QStringLiteral("wallKicker"), textOrNull(card.wallKicker)},
                       {QStringLiteral("wallCaption"), textOrNull(card.wallCaption)}};
}

QJsonValue toJson(const WhenCard& card) {
    QJsonObject json{{QStringLiteral("kicker"), card.kicker},
                     {QStringLiteral("headline"), card.headline},
                     {QStringLiteral("detail"), textOrNull(card.detail)},
                     {QStringLiteral("chartCaption"), card.chartCaption},
                     {QStringLiteral("peak"), card.peak}};
    // The biggest day is told by its date.
    for (const FactBox& fact : card.facts)
        json[fact.title] = fact.detail.isEmpty() ? fact.value : fact.detail;
    return json;
}

QJsonValue toJson(const HighPointsCard& card) {
    QStringList lines;
    for (const HighPoint& line : card.lines)
        lines << line.text;
    return QJsonObject{{QStringLiteral("kicker"), card.kicker},
                       {QStringLiteral("sentence"), card.sentence},
                       {QStringLiteral("lines"), texts(lines)}};
}

QJsonValue toJson(const MilestonesCard& card) {
    QJsonArray badges;
    for (const MilestoneBadge& badge : card.badges)
        badges << QJsonArray{badge.hours, badge.date};
    return QJsonObject{{QStringLiteral("kicker"), card.kicker},
                       {QStringLiteral("sentence"), card.sentence},
                       {QStringLiteral("badges"), badges}};
}

QJsonValue toJson(const NarrativeCard& card) {
    return QJsonObject{{QStringLiteral("kicker"), card.kicker},
                       {QStringLiteral("text"), textOrNull(card.text)},
                       {QStringLiteral("quiet"), card.quiet}};
}

QJsonValue toJson(const NotesCard& card) {
    QStringList highlights;
    for (const NoteHighlight& highlight : card.highlights)
        highlights << highlight.text;
    return QJsonObject{{QStringLiteral("kicker"), card.kicker},
                       {QStringLiteral("story"), card.story},
                       {QStringLiteral("chips"), texts(card.themes)},
                       {QStringLiteral("highlights"), texts(highlights)},
                       {QStringLiteral("more"), textOrNull(card.more)},
                       {QStringLiteral("foot"), card.foot}};
}

QJsonValue toJson(const SummaryCard& card) {
    return QJsonObject{{QStringLiteral("title"), card.title},
                       {QStringLiteral("closing"), card.closing},
                       {QStringLiteral("foot"), card.foot},
                       {QStringLiteral("file"), card.fileName}};
}

template <typename Card>
QJsonValue orNull(const std::optional<Card>& card) {
    return card ? toJson(*card) : QJsonValue(QJsonValue::Null);
}

std::size_t room(const QJsonObject& input, QLatin1String key) {
    return static_cast<std::size_t>(input[key].toInt());
}

} // namespace

WrappedSettings reviewSettingsFromJson(const QJsonObject& input) {
    WrappedSettings settings;
    settings.now = dateFromJson(input[QLatin1String("now")]);
    settings.calendar = calendarFromJson(input[QLatin1String("calendar")]);
    settings.skills = skillsFromJson(input[QLatin1String("skills")]);
    settings.dailyGoalHours = input[QLatin1String("dailyGoalHours")].toDouble();
    settings.durationStyle =
        durationstyle::fromRawValue(input[QLatin1String("durationStyle")].toString())
            .value_or(DurationStyle::Natural);
    return settings;
}

QJsonValue reviewTexts(const QJsonObject& input) {
    const WrappedSettings settings = reviewSettingsFromJson(input);
    const auto period = wrappedperiod::fromId(input[QLatin1String("period")].toString()).value();
    const WrappedStats stats =
        WrappedStats::compute(sessionsFromJson(input[QLatin1String("sessions")]), period, settings);
    const QJsonValue wall = input[QLatin1String("wallCapacity")];
    const std::int64_t wallCapacity =
        wall.isDouble() ? wall.toInteger() : std::numeric_limits<std::int64_t>::max();
    return QJsonObject{
        {QStringLiteral("hero"), toJson(reviewcards::hero(stats, settings))},
        {QStringLiteral("skills"),
         orNull(reviewcards::skills(stats, settings, room(input, QLatin1String("rowsShown"))))},
        {QStringLiteral("persona"), toJson(reviewcards::persona(stats))},
        {QStringLiteral("rhythm"),
         toJson(reviewcards::rhythm(stats, settings, std::nullopt, wallCapacity))},
        {QStringLiteral("when"), orNull(reviewcards::when(stats, settings))},
        {QStringLiteral("superlatives"), toJson(reviewcards::highPoints(stats))},
        {QStringLiteral("milestones"), orNull(reviewcards::milestones(stats, settings))},
        {QStringLiteral("narrative"),
         toJson(reviewcards::narrative(period, input[QLatin1String("narrative")].toString()))},
        {QStringLiteral("notes"),
         orNull(
             reviewcards::notes(stats, settings, room(input, QLatin1String("highlightsShown"))))},
        {QStringLiteral("summary"), toJson(reviewcards::summary(stats, settings))}};
}

} // namespace vantle::vectors
