// What becomes of the session and of commands, spoken by a screen reader.
#pragma once

#include "base/Scheduler.h"
#include "surfaces/kit/controls/Announcer.h"
#include "tracking/TrackerCore.h"

#include <QObject>

namespace vantle {

class AppModel;
class OpenQuestions;
class SkillList;

/// A session is mostly started and stopped by the shortcut, while another application has the
/// keyboard and nothing of the program is in front. The running clock is never spoken. Main thread.
class SpokenEvents final : public QObject {
    Q_OBJECT

public:
    /// All of it must outlive this object.
    struct Environment {
        AppModel& model;
        SkillList& skills;
        OpenQuestions& questions;
        Scheduler& scheduler;
    };

    explicit SpokenEvents(const Environment& environment);

    /// What was said last, for tests.
    [[nodiscard]] const Announcer& announcer() const { return m_announcer; }

private:
    void say(const QString& text);
    void followState();
    void tellState();
    [[nodiscard]] QString currentSkill() const;

    const Environment m_env;
    Announcer m_announcer;
    TimerHandle m_start; ///< there while nobody would hear a message
    QString m_held;      ///< the last message until then
    TrackerCore::State m_told;
    QString m_toldSkill; ///< of the session
    bool m_isPosted = false;
};

} // namespace vantle
