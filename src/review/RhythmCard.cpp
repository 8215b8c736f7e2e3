#include "review/RhythmCard.h"

#include "base/Bidi.h"
#include "base/DateText.h"
#include "base/Words.h"
#include "tracking/DashFormat.h"

#include <algorithm>

namespace vantle {

/// Writes what a tile says of its day.
class DayWords {
public:
    explicit DayWords(const WrappedSettings& settings)
        : m_style(settings.durationStyle)
        , m_date(DateText::fixed(Words::tr("EEE, MMM d", "date pattern"), settings.calendar)) {}

    [[nodiscard]] QString of(Date date, double hours) const {
        QString text = bidi::isolated(m_date(date));
        if (rhythmmap::opacity(hours))
            text += QStringLiteral(" · ") + dashformat::inlineHours(hours, m_style);
        return text;
    }

private:
    DurationStyle m_style;
    DateText m_date;
};

QString DayTile::help() const { return words ? words->of(date, hours) : QString(); }

namespace {

constexpr double kHairline = 1;

QVariantList tilesOf(const std::vector<RhythmPicture::Week>& weeks) {
    QVariantList list;
    for (const auto& week : weeks)
        for (const DayTile& tile : week)
            list << QVariant::fromValue(tile);
    return list;
}

/// Makes the tiles of days.
class TileMaker {
public:
    TileMaker(const WrappedStats& stats, const WrappedSettings& settings)
        : m_accent(cardwords::leadingColor(stats))
        , m_words(std::make_shared<DayWords>(settings)) {}

    [[nodiscard]] std::vector<RhythmPicture::Week>
    weeks(const std::vector<rhythmshape::Week>& grid) const {
        std::vector<RhythmPicture::Week> made(grid.size());
        for (std::size_t i = 0; i < grid.size(); ++i)
            std::ranges::transform(grid[i], made[i].begin(), [this](const auto& day) {
                return day ? tile(*day) : DayTile();
            });
        return made;
    }

private:
    [[nodiscard]] DayTile tile(const GridDay& day) const {
        const auto look = rhythmmap::tile(day, m_accent);
        DayTile made;
        made.isDay = true;
        made.isFuture = day.isFuture;
        made.isToday = day.isToday;
        made.hasFill = look.fill.has_value();
        if (look.fill) made.fill = cardwords::withOpacity(*look.fill, look.fillOpacity);
        if (look.outline) {
            made.outline = cardwords::withOpacity(0xFFFFFF, look.outline->opacity);
            made.outlineWidth = look.outline->width.value_or(kHairline);
        }
        made.date = day.date;
        made.hours = day.hours;
        made.words = m_words;
        return made;
    }

    std::uint32_t m_accent;
    std::shared_ptr<const DayWords> m_words;
};

std::vector<rhythmshape::Week> weekStrip(WrappedPeriod period, const RhythmDays& days) {
    const auto list = rhythmshape::weekDays(period, days);
    if (list.empty()) return {};
    std::vector<rhythmshape::Week> strip(1);
    std::ranges::copy(list, strip.front().begin());
    return strip;
}

void addMonths(RhythmPicture& picture, const std::vector<std::vector<GridDay>>& months,
               const TileMaker& maker, const Calendar& calendar) {
    const DateText name = DateText::fixed(QStringLiteral("LLL"), calendar);
    for (const auto& month : months) {
        picture.months.push_back(maker.weeks(rhythmshape::inWeeks(month, calendar)));
        picture.monthNames << (month.empty() ? QString() : name(month.front().date));
    }
}

QString wallCaption(std::int64_t leftOut) {
    if (leftOut <= 0) return Words::tr("One dot per finished hour, in the skill that earned it.");
    if (leftOut == 1) return Words::tr("One dot per finished hour. 1 earlier hour off the top.");
    return Words::tr("One dot per finished hour. %n earlier hours off the top.", nullptr,
                     static_cast<int>(leftOut));
}

} // namespace

QVariantList RhythmPicture::tileList() const { return tilesOf(weeks); }

QVariantList RhythmPicture::monthList() const {
    QVariantList list;
    for (const auto& month : months)
        list.append(QVariant(tilesOf(month)));
    return list;
}

namespace reviewcards {

RhythmPicture rhythmPicture(const WrappedStats& stats, const WrappedSettings& settings, int year) {
    const RhythmDays days = RhythmDays::of(stats, settings);
    const TileMaker maker(stats, settings);
    RhythmPicture picture;
    picture.letters = rhythmmap::headerLetters(settings.calendar);
    picture.kind = rhythmmap::picture(stats.period);
    switch (picture.kind) {
    case rhythmmap::Picture::Week:
        picture.weeks = maker.weeks(weekStrip(stats.period, days));
        break;
    case rhythmmap::Picture::Month:
        picture.weeks = maker.weeks(rhythmshape::monthWeeks(days));
        break;
    case rhythmmap::Picture::Year:
        picture.year = year;
        picture.weeks = maker.weeks(rhythmshape::yearWeeks(year, days));
        addMonths(picture, rhythmshape::yearMonths(year, days), maker, settings.calendar);
        break;
    }
    return picture;
}

RhythmCard rhythm(const WrappedStats& stats, const WrappedSettings& settings,
                  std::optional<int> chosenYear, std::int64_t wallCapacity) {
    const RhythmDays today{settings.now, settings.calendar, {}};
    const int year = rhythmmap::yearShown(chosenYear, stats.activeYears, today);
    RhythmCard card;
    card.kicker = Words::tr("YOUR RHYTHM");
    card.picture = rhythmPicture(stats, settings, year);
    card.caption = rhythmmap::caption(stats.period, year, today);
    card.label = rhythmmap::label(stats.period, year);
    if (card.picture.isYear())
        for (const int choice : rhythmmap::yearChoices(stats.activeYears))
            card.years.push_back({choice, rhythmmap::yearChoiceLabel(choice)});
    // Only a week leaves room for the wall.
    if (card.picture.isWeek() && !stats.hourDots.empty()) {
        card.wallKicker = Words::tr("EVERY HOUR, ON THE WALL");
        card.wallCaption = wallCaption(cardwords::dotCount(stats) - wallCapacity);
        card.wallColors = cardwords::dotColors(stats, wallCapacity);
    }
    return card;
}

} // namespace reviewcards
} // namespace vantle
