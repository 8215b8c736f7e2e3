// The model of the hours window.
#pragma once

#include "base/Scheduler.h"
#include "surfaces/dashboard/DashboardFigures.h"

#include <QObject>
#include <QQmlEngine>
#include <QVariantList>

#include <functional>

namespace vantle {

class Clock;
class NotificationCenter;
class Preferences;
class SessionFlow;
class SkillList;
class TrackerCore;

/// Keeps a copy of the log and computes everything from it. Reads it again when the window opens,
/// when a session starts, pauses or ends, when log, skills or daily goal change, at midnight, and
/// hourly without a session. Ticks each second during a session. Main thread.
class DashboardView final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window router.")
    /// A StatBlock each.
    Q_PROPERTY(QVariantList stats READ stats NOTIFY figuresChanged FINAL)
    /// The three blocks as text.
    Q_PROPERTY(QString figuresSpoken READ figuresSpoken NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QList<QColor> wallColors READ wallColors NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString wallText READ wallText NOTIFY figuresChanged FINAL)
    /// A SkillTotalLine each.
    Q_PROPERTY(QVariantList skillTotals READ skillTotals NOTIFY figuresChanged FINAL)
    /// A RecentLine each.
    Q_PROPERTY(QVariantList recent READ recent NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString recentText READ recentText NOTIFY figuresChanged FINAL)

    /// The current hour on the wall.
    Q_PROPERTY(double sliceFraction READ sliceFraction NOTIFY ticked FINAL)
    Q_PROPERTY(QColor sliceColor READ sliceColor NOTIFY ticked FINAL)
    Q_PROPERTY(QString wallLabel READ wallLabel NOTIFY ticked FINAL)

    /// Whether a session is open, and the texts of its chip.
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY ticked FINAL)
    Q_PROPERTY(QString chipText READ chipText NOTIFY ticked FINAL)
    /// The chip's text in two parts: one that may be elided, and the time.
    Q_PROPERTY(QString chipState READ chipState NOTIFY ticked FINAL)
    Q_PROPERTY(QString elapsed READ elapsed NOTIFY ticked FINAL)
    Q_PROPERTY(QString chipHoverText READ chipHoverText NOTIFY ticked FINAL)
    Q_PROPERTY(QString chipLabel READ chipLabel NOTIFY ticked FINAL)
    Q_PROPERTY(QColor chipColor READ chipColor NOTIFY ticked FINAL)
    Q_PROPERTY(bool isPaused READ isPaused NOTIFY ticked FINAL)

    /// Whether the shortcut is registered for every application.
    Q_PROPERTY(bool hasShortcut READ hasShortcut NOTIFY shortcutChanged FINAL)

    /// The problem with the log; empty when there is none.
    Q_PROPERTY(QString warning READ warning NOTIFY warningChanged FINAL)

public:
    /// The services of the window. All of them must outlive the model.
    struct Environment {
        SessionFlow& flow;
        SkillList& skills;
        NotificationCenter& notifications;
        const Preferences& preferences;
        const Clock& clock;
        Scheduler& scheduler;
        std::function<Calendar()> calendar;
        std::function<void()> openQuickLog;
        std::function<void()> openWrapped;
    };

    explicit DashboardView(Environment environment);
    ~DashboardView() override;

    [[nodiscard]] QVariantList stats() const { return m_stats; }
    [[nodiscard]] QString figuresSpoken() const;
    [[nodiscard]] QList<QColor> wallColors() const { return m_wallColors; }
    [[nodiscard]] QString wallText() const { return dashboard::wallText(m_dots); }
    [[nodiscard]] QVariantList skillTotals() const { return m_skillTotals; }
    [[nodiscard]] QVariantList recent() const { return m_recent; }
    [[nodiscard]] QString recentText() const;

    [[nodiscard]] double partialFraction() const;
    [[nodiscard]] double sliceFraction() const;
    [[nodiscard]] QColor sliceColor() const;
    [[nodiscard]] QString wallLabel() const;

    [[nodiscard]] bool isOpen() const;
    [[nodiscard]] bool isPaused() const;
    [[nodiscard]] QString chipText() const;
    [[nodiscard]] QString chipState() const;
    [[nodiscard]] QString elapsed() const;
    [[nodiscard]] QString chipHoverText() const;
    [[nodiscard]] QString chipLabel() const;
    [[nodiscard]] QColor chipColor() const;
    [[nodiscard]] bool hasShortcut() const;
    [[nodiscard]] QString warning() const;

    /// Starts a session, or stops the open one.
    Q_INVOKABLE void toggle();
    Q_INVOKABLE void openQuickLog() { m_env.openQuickLog(); }
    Q_INVOKABLE void openWrapped() { m_env.openWrapped(); }

Q_SIGNALS:
    void figuresChanged();
    void ticked();
    void shortcutChanged();
    void warningChanged();

private:
    void reload();
    void followState();
    [[nodiscard]] DashboardSetting setting() const;
    [[nodiscard]] std::int64_t activeSeconds() const;
    [[nodiscard]] Skill openSkill() const;
    [[nodiscard]] TrackerCore& tracker() const;

    const Environment m_env;
    QVariantList m_stats;
    QVariantList m_skillTotals;
    QVariantList m_recent;
    QList<QColor> m_wallColors;
    QColor m_lastColor; ///< of the last session in the log
    std::size_t m_count = 0;
    std::int64_t m_dots = 0;
    std::int64_t m_loggedSeconds = 0;
    TimerHandle m_tick;
    TimerHandle m_nextReload;
};

} // namespace vantle
