// The pages about start times and high points.
//
// Plain values and pure functions, any thread.
#pragma once

#include "review/CardWords.h"

#include <QStringList>

namespace vantle {

/// A fact in its own box.
struct FactBox {
    Q_GADGET
    QML_VALUE_TYPE(factBox)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString value MEMBER value CONSTANT)
    Q_PROPERTY(QString detail MEMBER detail CONSTANT)

public:
    QString title;
    QString value;
    QString detail; ///< shown before the value; may be empty
};

struct WhenCard {
    Q_GADGET
    QML_VALUE_TYPE(whenCard)
    Q_PROPERTY(QString kicker MEMBER kicker CONSTANT)
    Q_PROPERTY(QString headline MEMBER headline CONSTANT)
    Q_PROPERTY(QString detail MEMBER detail CONSTANT)
    Q_PROPERTY(QList<double> bars MEMBER bars CONSTANT)
    Q_PROPERTY(int peakBar MEMBER peakBar CONSTANT)
    Q_PROPERTY(QStringList hourMarks MEMBER hourMarks CONSTANT)
    Q_PROPERTY(QColor accent MEMBER accent CONSTANT)
    Q_PROPERTY(QString chartCaption MEMBER chartCaption CONSTANT)
    Q_PROPERTY(QString chartLabel MEMBER chartLabel CONSTANT)
    Q_PROPERTY(QString peak MEMBER peak CONSTANT)
    Q_PROPERTY(QVariantList facts READ factList CONSTANT)

public:
    QString kicker;
    QString headline;
    QString detail;        ///< may be empty
    QList<double> bars;    ///< one per two hours, relative to the highest
    int peakBar = 0;       ///< index of the bar with the peak hour
    QStringList hourMarks; ///< every six hours, midnight to midnight
    QColor accent;
    QString chartCaption;
    QString chartLabel; ///< for screen readers
    QString peak;
    std::vector<FactBox> facts;

    [[nodiscard]] QVariantList factList() const { return cardwords::asList(facts); }
};

struct HighPoint {
    Q_GADGET
    QML_VALUE_TYPE(highPoint)
    Q_PROPERTY(QString icon MEMBER icon CONSTANT)
    Q_PROPERTY(QColor tint MEMBER tint CONSTANT)
    Q_PROPERTY(QString text MEMBER text CONSTANT)

public:
    QString icon; ///< name of its symbol
    QColor tint;
    QString text;
};

struct HighPointsCard {
    Q_GADGET
    QML_VALUE_TYPE(highPointsCard)
    Q_PROPERTY(QString kicker MEMBER kicker CONSTANT)
    Q_PROPERTY(QString sentence MEMBER sentence CONSTANT)
    Q_PROPERTY(QVariantList lines READ lineList CONSTANT)

public:
    QString kicker;
    QString sentence;
    std::vector<HighPoint> lines;

    [[nodiscard]] QVariantList lineList() const { return cardwords::asList(lines); }
};

namespace reviewcards {

/// Empty for a period with too few starts.
[[nodiscard]] std::optional<WhenCard> when(const WrappedStats& stats,
                                           const WrappedSettings& settings);

[[nodiscard]] HighPointsCard highPoints(const WrappedStats& stats);

} // namespace reviewcards
} // namespace vantle
