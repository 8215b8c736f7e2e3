// Screen reader announcements of sessions and commands.
#pragma once

#include "base/Scheduler.h"
#include "surfaces/kit/controls/Announcer.h"
#include "tracking/TrackerCore.h"

#include <QObject>

namespace vantle {

class AppModel;
class OpenQuestions;
class SkillList;

/// The user mostly starts and stops sessions by the shortcut, with another application in front.
/// The running clock is never announced. Main thread.
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

    /// The last announcement, for tests.
    [[nodiscard]] const Announcer& announcer() const { return m_announcer; }

private:
    void say(const QString& text);
    void followState();
    void tellState();
    [[nodiscard]] QString currentSkill() const;

    const Environment m_env;
    Announcer m_announcer;
    TimerHandle m_start; ///< set while messages would be lost
    QString m_held;      ///< the last message during that time
    TrackerCore::State m_told;
    QString m_toldSkill; ///< of the session
    bool m_isPosted = false;
};

} // namespace vantle
