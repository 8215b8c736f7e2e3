// The content of the hours window.
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

/// One of the three progress figures. Without hours there is an invitation in place of the value.
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
    QString value; ///< empty without hours
    QString unit;
    QString context;
    QString invitation;
    double fraction = 0; ///< of the goal; may exceed 1
    QColor accent;

    /// The block for screen readers.
    [[nodiscard]] QString spoken() const;

    friend bool operator==(const StatBlock&, const StatBlock&) = default;
};

/// A skill in the card of hours by skill.
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
    double fraction = 0; ///< relative to the top skill
    QString hours;
    QString share; ///< "46%"

    /// The row for screen readers.
    [[nodiscard]] QString spoken() const;

    friend bool operator==(const SkillTotalLine&, const SkillTotalLine&) = default;
};

/// A row of recent work: close sessions are merged.
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

    /// The row for screen readers.
    [[nodiscard]] QString spoken() const;

    friend bool operator==(const RecentLine&, const RecentLine&) = default;
};

/// The parameters beside the log.
struct DashboardSetting {
    Date now;
    Calendar calendar;
    std::vector<Skill> skills; ///< the user's
    DurationStyle style = DurationStyle::Natural;
    double goalHours = 2; ///< per day, above 0
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

/// The colours of the last finished hours that fit the wall, oldest first.
[[nodiscard]] QList<QColor> wallColors(const Sessions& sessions, const DashboardSetting& setting);

/// The text beside the wall's heading.
[[nodiscard]] QString wallText(std::int64_t dots);

/// The done part of the current hour, 0 to 0.999. `activeSeconds` are those of the open session.
[[nodiscard]] double partialFraction(std::int64_t loggedSeconds, std::int64_t activeSeconds);

/// The slice that the wall draws; 0 on a full wall or when too small to see.
[[nodiscard]] double sliceFraction(double partialFraction, std::int64_t dots);

/// The wall for screen readers.
[[nodiscard]] QString wallLabel(std::int64_t dots, double partialFraction);

/// Skills with hours, most hours first.
[[nodiscard]] std::vector<SkillTotalLine> skillTotals(const Sessions& sessions,
                                                      const DashboardSetting& setting);

/// A percentage; more than nothing is never 0.
[[nodiscard]] QString shareText(double part, double whole);

/// The newest groups of sessions, newest first.
[[nodiscard]] std::vector<RecentLine> recent(const Sessions& sessions,
                                             const DashboardSetting& setting);

/// The number of sessions and their total time; empty without any.
[[nodiscard]] QString recentText(std::size_t count, std::int64_t seconds, DurationStyle style);

} // namespace dashboard
} // namespace vantle
