// The pages about the hours: how many, in what, and what was passed on the way.
//
// Plain values and pure functions, any thread. A text that a page does without is empty.
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
    ReviewFigure figure; ///< the hours when they are counted up
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
    QString share;       ///< of all hours
    double fraction = 0; ///< of the skill with the most

    /// The line in words, for assistive tools.
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
    std::vector<SkillLine> others; ///< after the top one
    QString more;                  ///< how many stand nowhere

    [[nodiscard]] QVariantList otherLines() const { return cardwords::asList(others); }
};

struct MilestoneBadge {
    Q_GADGET
    QML_VALUE_TYPE(milestoneBadge)
    Q_PROPERTY(int hours MEMBER hours CONSTANT)
    Q_PROPERTY(QString date MEMBER date CONSTANT)
    Q_PROPERTY(QList<QColor> ring MEMBER ring CONSTANT)

public:
    int hours = 0;
    QString date;       ///< "Mar 9"
    QList<QColor> ring; ///< of the hours that made the milestone, from the first one on
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

/// How many dots the ring of a milestone has.
inline constexpr int ringDots = 20;

/// The page of a period with sessions that have no time: it says so.
[[nodiscard]] SkillsCard skillsWithoutTime(const WrappedStats& stats,
                                           const WrappedSettings& settings);

/// None without hours. `shown` skills have room, the top one among them.
[[nodiscard]] std::optional<SkillsCard> skills(const WrappedStats& stats,
                                               const WrappedSettings& settings, std::size_t shown);

/// The first skills as lines.
[[nodiscard]] std::vector<SkillLine> skillLines(const WrappedStats& stats,
                                                const WrappedSettings& settings, std::size_t shown);

/// None where no milestone was passed.
[[nodiscard]] std::optional<MilestonesCard> milestones(const WrappedStats& stats,
                                                       const WrappedSettings& settings);

} // namespace reviewcards
} // namespace vantle
