// The content of a review's poster, without its drawing.
//
// Plain values and pure functions, any thread.
#pragma once

#include "review/HoursCards.h"
#include "review/RhythmCard.h"

namespace vantle {

/// A column of the poster's last row.
struct PosterFigure {
    Q_GADGET
    QML_VALUE_TYPE(posterFigure)
    Q_PROPERTY(vantle::ReviewFigure figure MEMBER figure CONSTANT)
    Q_PROPERTY(QString title MEMBER title CONSTANT)

public:
    ReviewFigure figure;
    QString title;
};

struct SharePoster {
    Q_GADGET
    QML_VALUE_TYPE(sharePoster)
    Q_PROPERTY(QString wordmark MEMBER wordmark CONSTANT)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QList<QColor> dotColors MEMBER dotColors CONSTANT)
    Q_PROPERTY(QString personaName MEMBER personaName CONSTANT)
    Q_PROPERTY(QColor startColor MEMBER startColor CONSTANT)
    Q_PROPERTY(QColor endColor MEMBER endColor CONSTANT)
    Q_PROPERTY(vantle::ReviewFigure hours MEMBER hours CONSTANT)
    Q_PROPERTY(QString closing MEMBER closing CONSTANT)
    Q_PROPERTY(QString rhythmKicker MEMBER rhythmKicker CONSTANT)
    Q_PROPERTY(vantle::RhythmPicture rhythm MEMBER rhythm CONSTANT)
    Q_PROPERTY(QString breakdownKicker MEMBER breakdownKicker CONSTANT)
    Q_PROPERTY(QVariantList breakdown READ breakdownList CONSTANT)
    Q_PROPERTY(QVariantList figures READ figureList CONSTANT)
    Q_PROPERTY(QString footer MEMBER footer CONSTANT)

public:
    QString wordmark;
    QString title;
    QList<QColor> dotColors; ///< colours of the dots, to be repeated; never empty
    QString personaName;     ///< stands large in its gradient; empty without a type, and then the
                             ///< hours stand there
    QColor startColor;
    QColor endColor;
    ReviewFigure hours;
    QString closing;
    QString rhythmKicker;
    RhythmPicture rhythm;
    QString breakdownKicker;          ///< empty without hours
    std::vector<SkillLine> breakdown; ///< at most three
    std::vector<PosterFigure> figures;
    QString footer;

    [[nodiscard]] QVariantList breakdownList() const { return cardwords::asList(breakdown); }
    [[nodiscard]] QVariantList figureList() const { return cardwords::asList(figures); }
};

namespace reviewcards {

/// More dots do not fit the poster.
inline constexpr std::int64_t posterDots = 240;
inline constexpr std::size_t posterSkills = 3;

[[nodiscard]] SharePoster poster(const WrappedStats& stats, const WrappedSettings& settings);

} // namespace reviewcards
} // namespace vantle
