// The page with a period's calendar and its wall of hours.
//
// Plain values and pure functions, any thread.
#pragma once

#include "review/CardWords.h"
#include "review/RhythmMap.h"

#include <memory>

namespace vantle {

class DayWords;

/// A day of the calendar, or a blank. Colours include their opacity.
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
    Q_PROPERTY(QString help READ help CONSTANT)

public:
    bool isDay = false;
    bool isFuture = false;
    bool isToday = false;
    bool hasFill = false; ///< false without work: drawn as an empty tile
    QColor fill = Qt::transparent;
    QColor outline = Qt::transparent;
    double outlineWidth = 0; ///< px
    Date date;
    double hours = 0;
    std::shared_ptr<const DayWords> words; ///< of all tiles of a picture; null for a blank

    /// Returns "Mon, Mar 9 · 1.5 h"; empty for a blank. Written when the user points at a day,
    /// since a year has hundreds.
    [[nodiscard]] QString help() const;
};

struct YearChoice {
    Q_GADGET
    QML_VALUE_TYPE(yearChoice)
    Q_PROPERTY(int year MEMBER year CONSTANT)
    Q_PROPERTY(QString label MEMBER label CONSTANT)

public:
    int year = 0;
    QString label; ///< for screen readers
};

/// The calendar of one page. `weeks` has seven tiles each: one for a week, a row each for a month,
/// a column each for a year. A year has `months` too.
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
    QStringList letters;                   ///< initials of the weekdays, in tile order
    std::vector<Week> weeks;               ///< empty when ICU cannot compute the calendar
    std::vector<std::vector<Week>> months; ///< of a year map
    QStringList monthNames;                ///< of a year map, short: "Jan"

    [[nodiscard]] bool isWeek() const { return kind == rhythmmap::Picture::Week; }
    [[nodiscard]] bool isMonth() const { return kind == rhythmmap::Picture::Month; }
    [[nodiscard]] bool isYear() const { return kind == rhythmmap::Picture::Year; }

    /// The tiles week by week, with blanks.
    [[nodiscard]] QVariantList tileList() const;
    /// The same, one list per month.
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
    QString label;                 ///< for screen readers; may be empty
    std::vector<YearChoice> years; ///< empty when there is only one
    QString wallKicker;            ///< empty without a wall
    QString wallCaption;
    QList<QColor> wallColors; ///< oldest first

    [[nodiscard]] QVariantList yearList() const { return cardwords::asList(years); }
};

namespace reviewcards {

/// Returns the calendar of the period; for all time, the calendar of `year`.
[[nodiscard]] RhythmPicture rhythmPicture(const WrappedStats& stats,
                                          const WrappedSettings& settings, int year);

/// `wallCapacity` dots fit the wall.
[[nodiscard]] RhythmCard rhythm(const WrappedStats& stats, const WrappedSettings& settings,
                                std::optional<int> chosenYear, std::int64_t wallCapacity);

} // namespace reviewcards
} // namespace vantle
