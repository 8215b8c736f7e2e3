// What the hours window says about the log.
//
// Plain values and pure functions, any thread.
#pragma once

#include "base/Calendar.h"
#include "tracking/DurationStyle.h"
#include "tracking/Session.h"
#include "tracking/Skill.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QStringList>

#include <vector>

namespace vantle {

/// One of the three progress figures. Without hours there is no value, only the invitation.
struct StatBlock {
    Q_GADGET
    QML_VALUE_TYPE(statBlock)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString value MEMBER value CONSTANT)
    Q_PROPERTY(QString unit MEMBER unit CONSTANT)
    Q_PROPERTY(QString context MEMBER context CONSTANT)
    Q_PROPERTY(QString invitation MEMBER invitation CONSTANT)
    Q_PROPERTY(double fraction MEMBER fraction CONSTANT)
    Q_PROPERTY(QColor accent MEMBER accent CONSTANT)
    Q_PROPERTY(QString spoken READ spoken CONSTANT)

public:
    QString title;
    QString value; ///< empty when there are no hours
    QString unit;
    QString context;
    QString invitation;
    double fraction = 0; ///< of the goal; may be above 1
    QColor accent;

    /// The block in words, for assistive tools.
    [[nodiscard]] QString spoken() const;

    friend bool operator==(const StatBlock&, const StatBlock&) = default;
};

/// One skill in the card of hours by skill.
struct SkillTotalLine {
    Q_GADGET
    QML_VALUE_TYPE(skillTotalLine)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QColor color MEMBER color CONSTANT)
    Q_PROPERTY(double fraction MEMBER fraction CONSTANT)
    Q_PROPERTY(QString hours MEMBER hours CONSTANT)
    Q_PROPERTY(QString share MEMBER share CONSTANT)
    Q_PROPERTY(QString spoken READ spoken CONSTANT)

public:
    QString name;
    QColor color;
    double fraction = 0; ///< of the skill with most hours
    QString hours;
    QString share; ///< "46%"

    /// The row in words, for assistive tools.
    [[nodiscard]] QString spoken() const;

    friend bool operator==(const SkillTotalLine&, const SkillTotalLine&) = default;
};

/// One row of recent work: sessions that follow each other closely are one.
struct RecentLine {
    Q_GADGET
    QML_VALUE_TYPE(recentLine)
    Q_PROPERTY(QString date MEMBER date CONSTANT)
    Q_PROPERTY(QColor color MEMBER color CONSTANT)
    Q_PROPERTY(QString skillName MEMBER skillName CONSTANT)
    Q_PROPERTY(QString duration MEMBER duration CONSTANT)
    Q_PROPERTY(bool isManual MEMBER isManual CONSTANT)
    Q_PROPERTY(QString spoken READ spoken CONSTANT)

public:
    QString date;
    QColor color;
    QString skillName;
    QString duration;
    bool isManual = false;

    /// The row in words, for assistive tools.
    [[nodiscard]] QString spoken() const;

    friend bool operator==(const RecentLine&, const RecentLine&) = default;
};

/// All that the figures depend on, beside the log.
struct DashboardSetting {
    Date now;
    Calendar calendar;
    std::vector<Skill> skills; ///< the person's
    DurationStyle style = DurationStyle::Natural;
    double goalHours = 2; ///< a day, above 0
};

namespace dashboard {

inline constexpr int wallColumns = 32;
inline constexpr int wallRows = 2;
inline constexpr int wallCells = wallColumns * wallRows;
inline constexpr std::size_t recentGroups = 6;

using Sessions = std::vector<Session>;

/// Today, this week, all time.
[[nodiscard]] std::vector<StatBlock> stats(const Sessions& sessions,
                                           const DashboardSetting& setting);

/// The colours of the last finished hours that the wall has room for, oldest first.
[[nodiscard]] QList<QColor> wallColors(const Sessions& sessions, const DashboardSetting& setting);

/// What stands at the right of the wall's heading.
[[nodiscard]] QString wallText(std::int64_t dots);

/// How much of the current hour is done, 0 to 0.999. `activeSeconds` are those of the open session.
[[nodiscard]] double partialFraction(std::int64_t loggedSeconds, std::int64_t activeSeconds);

/// The part of `partialFraction` that the wall draws: nothing on a full wall or of a mere trace.
[[nodiscard]] double sliceFraction(double partialFraction, std::int64_t dots);

/// The wall in words, for assistive tools.
[[nodiscard]] QString wallLabel(std::int64_t dots, double partialFraction);

/// Skills with hours, most hours first.
[[nodiscard]] std::vector<SkillTotalLine> skillTotals(const Sessions& sessions,
                                                      const DashboardSetting& setting);

/// A part of a whole in percent; what is more than nothing never reads as nothing.
[[nodiscard]] QString shareText(double part, double whole);

/// The newest groups of sessions, newest first.
[[nodiscard]] std::vector<RecentLine> recent(const Sessions& sessions,
                                             const DashboardSetting& setting);

/// How many sessions the log has and how long those that count are together; empty without any.
[[nodiscard]] QString recentText(std::size_t count, std::int64_t seconds, DurationStyle style);

} // namespace dashboard
} // namespace vantle
