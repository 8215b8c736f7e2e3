// The calendar of a review: its grids, its tiles and what stands around them.
#include "review/RhythmMap.h"
#include "vectors/NeutralRecords.h"
#include "vectors/forms.h"

#include <map>

namespace vantle::vectors {

namespace {

QJsonValue numberOrNull(const auto& number) {
    return number ? QJsonValue(*number) : QJsonValue::Null;
}

QJsonValue colorOrNull(std::optional<std::uint32_t> color) {
    return color ? QJsonValue(static_cast<qint64>(*color)) : QJsonValue::Null;
}

QJsonValue toJson(const std::optional<GridDay>& day) {
    if (!day) return QJsonValue::Null;
    return QJsonObject{{QStringLiteral("date"), instantText(day->date)},
                       {QStringLiteral("hours"), day->hours},
                       {QStringLiteral("isFuture"), day->isFuture},
                       {QStringLiteral("color"), colorOrNull(day->color)},
                       {QStringLiteral("isToday"), day->isToday}};
}

QJsonValue toJson(const rhythmmap::TileLook& look) {
    QJsonObject tile{{QStringLiteral("fill"), colorOrNull(look.fill)},
                     {QStringLiteral("fillOpacity"), QJsonValue::Null},
                     {QStringLiteral("outlineOpacity"), QJsonValue::Null},
                     {QStringLiteral("outlineWidth"), QJsonValue::Null}};
    if (look.fill) tile[QLatin1String("fillOpacity")] = look.fillOpacity;
    if (look.outline) {
        tile[QLatin1String("outlineOpacity")] = look.outline->opacity;
        tile[QLatin1String("outlineWidth")] = numberOrNull(look.outline->width);
    }
    return tile;
}

RhythmDays daysFromJson(const QJsonObject& input) {
    std::map<Date, RhythmDays::Worked> worked;
    const auto at = [&worked](const QString& instant) -> RhythmDays::Worked& {
        const Date day = dateFromJson(instant);
        worked[day].day = day;
        return worked[day];
    };
    const QJsonObject hours = input[QLatin1String("dayHours")].toObject();
    for (auto it = hours.begin(); it != hours.end(); ++it)
        at(it.key()).hours = it.value().toDouble();
    const QJsonObject colors = input[QLatin1String("dayColors")].toObject();
    for (auto it = colors.begin(); it != colors.end(); ++it)
        at(it.key()).color = static_cast<std::uint32_t>(it.value().toInteger());
    RhythmDays days{dateFromJson(input[QLatin1String("now")]),
                    calendarFromJson(input[QLatin1String("calendar")]),
                    {}};
    for (const auto& [day, held] : worked)
        days.worked.push_back(held);
    return days;
}

void addWeeks(QJsonObject& answer, const RhythmDays& days, std::uint32_t accent) {
    QJsonObject weeks;
    QJsonObject tiles;
    QJsonObject captions;
    const int year = rhythmshape::yearOf(days.now, days.calendar);
    for (const WrappedPeriod period : wrappedperiod::all) {
        QJsonArray list;
        QJsonArray looks;
        for (const GridDay& day : rhythmshape::weekDays(period, days)) {
            list << toJson(day);
            looks << toJson(rhythmmap::tile(day, accent));
        }
        const QString id = wrappedperiod::id(period);
        weeks[id] = list;
        tiles[id] = looks;
        captions[id] = rhythmmap::caption(period, year, days);
    }
    answer[QLatin1String("weekDays")] = weeks;
    answer[QLatin1String("tilesOfWeek")] = tiles;
    answer[QLatin1String("captions")] = captions;
}

QJsonArray monthWeeks(const RhythmDays& days) {
    QJsonArray rows;
    for (const auto& week : rhythmshape::monthWeeks(days)) {
        QJsonArray row;
        for (const auto& day : week)
            row << toJson(day);
        rows << row;
    }
    return rows;
}

void addYears(QJsonObject& answer, const QJsonArray& years, const RhythmDays& days) {
    QJsonObject columns;
    QJsonObject cells;
    QJsonObject lengths;
    QJsonObject futures;
    for (const QJsonValue& value : years) {
        const QString key = QString::number(value.toInt());
        QJsonArray grid;
        QJsonArray marked;
        int future = 0;
        for (const auto& week : rhythmshape::yearWeeks(value.toInt(), days)) {
            QJsonArray column;
            for (const auto& day : week) {
                column << (day ? instantText(day->date) : QJsonValue::Null);
                if (day && (day->hours > 0 || day->color || day->isToday)) marked << toJson(day);
                if (day && day->isFuture) ++future;
            }
            grid << column;
        }
        QJsonArray months;
        for (const auto& month : rhythmshape::yearMonths(value.toInt(), days))
            months << static_cast<int>(month.size());
        columns[key] = grid;
        cells[key] = marked;
        lengths[key] = months;
        futures[key] = future;
    }
    answer[QLatin1String("years")] = columns;
    answer[QLatin1String("yearCells")] = cells;
    answer[QLatin1String("yearMonthLengths")] = lengths;
    answer[QLatin1String("yearFutureCount")] = futures;
}

/// Only what the case asks for.
QJsonValue grids(const Case& item) {
    const RhythmDays days = daysFromJson(item.input);
    QJsonObject all{{QStringLiteral("monthWeeks"), monthWeeks(days)},
                    {QStringLiteral("headerLetters"),
                     QJsonArray::fromStringList(rhythmmap::headerLetters(days.calendar))}};
    addWeeks(all, days,
             static_cast<std::uint32_t>(item.input[QLatin1String("accent")].toInteger()));
    addYears(all, item.input[QLatin1String("years")].toArray(), days);
    QJsonObject asked;
    for (const QString& key : item.expect.toObject().keys())
        asked[key] = all[key];
    return asked;
}

QJsonValue yearShown(const QJsonObject& input) {
    std::vector<int> active;
    for (const QJsonValue& year : input[QLatin1String("activeYears")].toArray())
        active.push_back(year.toInt());
    const QJsonValue shown = input[QLatin1String("shownYear")];
    const auto chosen = shown.isDouble() ? std::optional(shown.toInt()) : std::nullopt;
    QJsonArray buttons;
    for (const int year : rhythmmap::yearChoices(active))
        buttons << rhythmmap::yearChoiceLabel(year);
    return QJsonObject{
        {QStringLiteral("year"), rhythmmap::yearShown(chosen, active, daysFromJson(input))},
        {QStringLiteral("buttons"), buttons}};
}

QJsonValue picture(const QJsonObject& input) {
    const auto period = wrappedperiod::fromId(input[QLatin1String("period")].toString()).value();
    const QStringList names = {QStringLiteral("week"), QStringLiteral("month"),
                               QStringLiteral("year")};
    const QString label = rhythmmap::label(period, input[QLatin1String("year")].toInt());
    return QJsonObject{
        {QStringLiteral("picture"), names[static_cast<int>(rhythmmap::picture(period))]},
        {QStringLiteral("accessibility"), label.isEmpty() ? QJsonValue() : QJsonValue(label)}};
}

QJsonValue bars(const QJsonObject& input) {
    std::vector<int> counts;
    for (const QJsonValue& count : input[QLatin1String("counts")].toArray())
        counts.push_back(count.toInt());
    QJsonArray heights;
    for (const double height : rhythmmap::startBars(counts))
        heights << height;
    return heights;
}

QJsonValue weekDelays(const QJsonObject& input) {
    QJsonArray delays;
    for (const QJsonValue& index : input[QLatin1String("indices")].toArray())
        delays << rhythmmap::weekDelay(index.toInt());
    return delays;
}

QJsonValue answer(const Case& item) {
    if (item.kind == QLatin1String("grids")) return grids(item);
    if (item.kind == QLatin1String("yearShown")) return yearShown(item.input);
    if (item.kind == QLatin1String("picture")) return picture(item.input);
    if (item.kind == QLatin1String("bars")) return bars(item.input);
    if (item.kind == QLatin1String("weekDelays")) return weekDelays(item.input);
    if (item.kind == QLatin1String("opacity"))
        return QJsonObject{
            {QStringLiteral("opacity"),
             numberOrNull(rhythmmap::opacity(item.input[QLatin1String("hours")].toDouble()))}};
    return unknown(item.kind);
}

} // namespace

Form rhythmMapForm() {
    Form form;
    form.name = QStringLiteral("rhythm_map");
    form.answer = answer;
    return form;
}

} // namespace vantle::vectors
