// The model of the quick log form.
#pragma once

#include "surfaces/quicklog/QuickLogDuration.h"
#include "tracking/Skill.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace vantle {

class Preferences;
class SessionFlow;
class SkillList;

/// Logs time by hand, for work that the clock did not track. An entry that cannot be logged stays
/// as typed, with the reason in `errorMessage`. Main thread.
class QuickLogView final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window router.")
    Q_PROPERTY(QList<QString> skillNames READ skillNames NOTIFY skillsChanged FINAL)
    Q_PROPERTY(int skillIndex READ skillIndex WRITE setSkillIndex NOTIFY skillIndexChanged FINAL)
    Q_PROPERTY(QColor skillColor READ skillColor NOTIFY skillIndexChanged FINAL)
    Q_PROPERTY(QString hoursText READ hoursText WRITE setHoursText NOTIFY durationChanged FINAL)
    Q_PROPERTY(
        QString minutesText READ minutesText WRITE setMinutesText NOTIFY durationChanged FINAL)
    /// Both fields as one duration, for screen readers.
    Q_PROPERTY(QString durationSpoken READ durationSpoken NOTIFY durationChanged FINAL)
    Q_PROPERTY(QString note MEMBER m_note NOTIFY noteChanged FINAL)
    Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY errorMessageChanged FINAL)
    /// Whether the error is about the time rather than the log.
    Q_PROPERTY(bool isTimeWrong READ isTimeWrong NOTIFY errorMessageChanged FINAL)

public:
    /// `onClose` closes the form. The other three must outlive it.
    QuickLogView(SessionFlow& flow, SkillList& skills, const Preferences& preferences,
                 std::function<void()> onClose);

    [[nodiscard]] QList<QString> skillNames() const;
    [[nodiscard]] int skillIndex() const { return m_skillIndex; }
    void setSkillIndex(int index);
    [[nodiscard]] QColor skillColor() const;

    [[nodiscard]] const QString& hoursText() const { return m_duration.hours; }
    void setHoursText(const QString& text) { setDuration({text, m_duration.minutes}); }
    [[nodiscard]] const QString& minutesText() const { return m_duration.minutes; }
    void setMinutesText(const QString& text) { setDuration({m_duration.hours, text}); }

    [[nodiscard]] QString durationSpoken() const { return m_duration.spoken(); }

    [[nodiscard]] const QString& errorMessage() const { return m_errorMessage; }
    [[nodiscard]] bool isTimeWrong() const { return m_isTimeWrong; }

    /// Called when a field loses the focus.
    Q_INVOKABLE void normalizeDuration() { setDuration(m_duration.normalized()); }
    Q_INVOKABLE void stepDuration(int steps) { setDuration(m_duration.stepped(steps)); }

    /// Logs the entry and closes the form.
    Q_INVOKABLE void logEntry();
    Q_INVOKABLE void cancel() { m_onClose(); }

Q_SIGNALS:
    void skillsChanged();
    void skillIndexChanged();
    void durationChanged();
    void noteChanged();
    void errorMessageChanged();
    /// The hours field should take the focus.
    void hoursWanted();

private:
    /// Returns the skill's index in the list; 0 when it is missing.
    [[nodiscard]] int placeOf(const std::optional<QString>& id) const;
    [[nodiscard]] const Skill& chosenSkill() const;
    void setDuration(const QuickLogDuration& duration);
    void setError(const QString& message, bool isTimeWrong);

    SessionFlow& m_flow;
    SkillList& m_list;
    std::vector<Skill> m_skills; ///< never empty
    const std::function<void()> m_onClose;
    int m_skillIndex = 0;
    QuickLogDuration m_duration;
    QString m_note;
    QString m_errorMessage;
    bool m_isTimeWrong = false;
};

} // namespace vantle
