// The pages about hours: totals, skills, milestones.
//
// Plain values and pure functions, any thread. An unused text is empty.
#pragma once

#include "review/CardWords.h"

#include <QStringList>

namespace vantle {

struct HeroCard {
    Q_GADGET
    QML_VALUE_TYPE(heroCard)
    Q_PROPERTY(QString kicker MEMBER kicker CONSTANT)
    Q_PROPERTY(QString lead MEMBER lead CONSTANT)
    Q_PROPERTY(double hours MEMBER hours CONSTANT)
    Q_PROPERTY(QString hoursText MEMBER hoursText CONSTANT)
    Q_PROPERTY(vantle::ReviewFigure figure MEMBER figure CONSTANT)
    Q_PROPERTY(QString inSentence MEMBER inSentence CONSTANT)
    Q_PROPERTY(QString sessions MEMBER sessions CONSTANT)
    Q_PROPERTY(QStringList quiet MEMBER quiet CONSTANT)

public:
    QString kicker;
    QString lead;
    double hours = 0;
    QString hoursText;   ///< the hours as one text
    ReviewFigure figure; ///< the same while it counts up
    QString inSentence;
    QString sessions;
    QStringList quiet; ///< at most three lines
};

struct SkillLine {
    Q_GADGET
    QML_VALUE_TYPE(reviewSkillLine)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QColor color MEMBER color CONSTANT)
    Q_PROPERTY(QString hours MEMBER hours CONSTANT)
    Q_PROPERTY(QString share MEMBER share CONSTANT)
    Q_PROPERTY(double fraction MEMBER fraction CONSTANT)
    Q_PROPERTY(QString spoken READ spoken CONSTANT)

public:
    QString name;
    QColor color;
    QString hours;
    QString share;       ///< share of all hours
    double fraction = 0; ///< relative to the top skill

    /// The line for screen readers.
    [[nodiscard]] QString spoken() const;
};

struct SkillsCard {
    Q_GADGET
    QML_VALUE_TYPE(skillsCard)
    Q_PROPERTY(QString kicker MEMBER kicker CONSTANT)
    Q_PROPERTY(vantle::SkillLine top MEMBER top CONSTANT)
    Q_PROPERTY(vantle::ReviewFigure topFigure MEMBER topFigure CONSTANT)
    Q_PROPERTY(QString breakdownKicker MEMBER breakdownKicker CONSTANT)
    Q_PROPERTY(QVariantList others READ otherLines CONSTANT)
    Q_PROPERTY(QString more MEMBER more CONSTANT)

public:
    QString kicker;
    SkillLine top;
    ReviewFigure topFigure;
    QString breakdownKicker;       ///< empty with a single skill
    std::vector<SkillLine> others; ///< all but the top one
    QString more;                  ///< the number of skills left out

    [[nodiscard]] QVariantList otherLines() const { return cardwords::asList(others); }
};

struct MilestoneBadge {
    Q_GADGET
    QML_VALUE_TYPE(milestoneBadge)
    Q_PROPERTY(int hours MEMBER hours CONSTANT)
    Q_PROPERTY(QString date MEMBER date CONSTANT)
    Q_PROPERTY(QList<QColor> ring MEMBER ring CONSTANT)
    Q_PROPERTY(QString spoken READ spoken CONSTANT)

public:
    int hours = 0;
    QString date;       ///< "Mar 9"
    QList<QColor> ring; ///< colours of the hours up to the milestone, oldest first

    /// The badge in words, for assistive tools.
    [[nodiscard]] QString spoken() const;
};

struct MilestonesCard {
    Q_GADGET
    QML_VALUE_TYPE(milestonesCard)
    Q_PROPERTY(QString kicker MEMBER kicker CONSTANT)
    Q_PROPERTY(QString sentence MEMBER sentence CONSTANT)
    Q_PROPERTY(QVariantList badges READ badgeList CONSTANT)

public:
    QString kicker;
    QString sentence;
    std::vector<MilestoneBadge> badges;

    [[nodiscard]] QVariantList badgeList() const { return cardwords::asList(badges); }
};

namespace reviewcards {

[[nodiscard]] HeroCard hero(const WrappedStats& stats, const WrappedSettings& settings);

/// Dots in a milestone's ring.
inline constexpr int ringDots = 20;

/// The page of a period whose sessions have no time.
[[nodiscard]] SkillsCard skillsWithoutTime(const WrappedStats& stats,
                                           const WrappedSettings& settings);

/// Empty without hours. `shown` skills fit, including the top one.
[[nodiscard]] std::optional<SkillsCard> skills(const WrappedStats& stats,
                                               const WrappedSettings& settings, std::size_t shown);

/// Returns the first skills as lines.
[[nodiscard]] std::vector<SkillLine> skillLines(const WrappedStats& stats,
                                                const WrappedSettings& settings, std::size_t shown);

/// Empty when no milestone was reached.
[[nodiscard]] std::optional<MilestonesCard> milestones(const WrappedStats& stats,
                                                       const WrappedSettings& settings);

} // namespace reviewcards
} // namespace vantle
