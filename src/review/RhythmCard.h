// The page with the calendar and the wall of hours of a period.
//
// Plain values and pure functions, any thread.
#pragma once

#include "review/CardWords.h"
#include "review/RhythmMap.h"

namespace vantle {

/// A day in the calendar, or the blank where there is none. Colours come with their opacity.
struct DayTile {
    Q_GADGET
    QML_VALUE_TYPE(dayTile)
    Q_PROPERTY(bool isDay MEMBER isDay CONSTANT)
    Q_PROPERTY(bool isFuture MEMBER isFuture CONSTANT)
    Q_PROPERTY(bool isToday MEMBER isToday CONSTANT)
    Q_PROPERTY(bool hasFill MEMBER hasFill CONSTANT)
    Q_PROPERTY(QColor fill MEMBER fill CONSTANT)
    Q_PROPERTY(QColor outline MEMBER outline CONSTANT)
    Q_PROPERTY(double outlineWidth MEMBER outlineWidth CONSTANT)
    Q_PROPERTY(QString help MEMBER help CONSTANT)

public:
    bool isDay = false;
    bool isFuture = false;
    bool isToday = false;
    bool hasFill = false; ///< false for a day without work, which is drawn as an empty tile
    QColor fill = Qt::transparent;
    QColor outline = Qt::transparent;
    double outlineWidth = 0; ///< px
    QString help;            ///< "Mon, Mar 9 · 1.5 h"
};

struct YearChoice {
    Q_GADGET
    QML_VALUE_TYPE(yearChoice)
    Q_PROPERTY(int year MEMBER year CONSTANT)
    Q_PROPERTY(QString label MEMBER label CONSTANT)

public:
    int year = 0;
    QString label; ///< for assistive tools
};

/// The calendar as one picture. Its tiles stand in `weeks` of seven: a week has one, a month one
/// a row, a year one a column. A year comes month by month as well.
struct RhythmPicture {
    Q_GADGET
    QML_VALUE_TYPE(rhythmPicture)
    Q_PROPERTY(bool isWeek READ isWeek CONSTANT)
    Q_PROPERTY(bool isMonth READ isMonth CONSTANT)
    Q_PROPERTY(bool isYear READ isYear CONSTANT)
    Q_PROPERTY(int year MEMBER year CONSTANT)
    Q_PROPERTY(QStringList letters MEMBER letters CONSTANT)
    Q_PROPERTY(QVariantList tiles READ tileList CONSTANT)
    Q_PROPERTY(QVariantList months READ monthList CONSTANT)

public:
    using Week = std::array<DayTile, 7>;

    rhythmmap::Picture kind = rhythmmap::Picture::Week;
    int year = 0;                          ///< of a year map
    QStringList letters;                   ///< of the weekdays, in the order of the tiles
    std::vector<Week> weeks;               ///< empty where the calendar can't tell
    std::vector<std::vector<Week>> months; ///< of a year map
    QStringList monthNames;                ///< of a year map, short: "Jan"

    [[nodiscard]] bool isWeek() const { return kind == rhythmmap::Picture::Week; }
    [[nodiscard]] bool isMonth() const { return kind == rhythmmap::Picture::Month; }
    [[nodiscard]] bool isYear() const { return kind == rhythmmap::Picture::Year; }

    /// The tiles week after week, blanks included.
    [[nodiscard]] QVariantList tileList() const;
    /// The same for each month, a list each.
    [[nodiscard]] QVariantList monthList() const;
};

struct RhythmCard {
    Q_GADGET
    QML_VALUE_TYPE(rhythmCard)
    Q_PROPERTY(QString kicker MEMBER kicker CONSTANT)
    Q_PROPERTY(vantle::RhythmPicture picture MEMBER picture CONSTANT)
    Q_PROPERTY(QString caption MEMBER caption CONSTANT)
    Q_PROPERTY(QString label MEMBER label CONSTANT)
    Q_PROPERTY(QVariantList years READ yearList CONSTANT)
    Q_PROPERTY(QString wallKicker MEMBER wallKicker CONSTANT)
    Q_PROPERTY(QString wallCaption MEMBER wallCaption CONSTANT)
    Q_PROPERTY(QList<QColor> wallColors MEMBER wallColors CONSTANT)

public:
    QString kicker;
    RhythmPicture picture;
    QString caption;
    QString label;                 ///< the picture for assistive tools; may be empty
    std::vector<YearChoice> years; ///< to choose from; empty without a choice
    QString wallKicker;            ///< empty where there is no wall
    QString wallCaption;
    QList<QColor> wallColors; ///< oldest first

    [[nodiscard]] QVariantList yearList() const { return cardwords::asList(years); }
};

namespace reviewcards {

/// The calendar of the period; of all time, that of `year`.
[[nodiscard]] RhythmPicture rhythmPicture(const WrappedStats& stats,
                                          const WrappedSettings& settings, int year);

/// The wall has room for `wallCapacity` dots.
[[nodiscard]] RhythmCard rhythm(const WrappedStats& stats, const WrappedSettings& settings,
                                std::optional<int> chosenYear, std::int64_t wallCapacity);

} // namespace reviewcards
} // namespace vantle
