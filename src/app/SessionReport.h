// Tells other programs of the desktop of the session.
#pragma once

#include "base/Calendar.h"
#include "platform/SessionStatus.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <optional>

namespace vantle {

class Clock;
class NotificationCenter;
class SkillList;
class TrackerCore;

/// Reads the log only for a question, and once after each change of it. Main thread.
class SessionReport final : public QObject {
    Q_OBJECT

public:
    /// All must outlive this object.
    struct Environment {
        const Clock& clock;
        std::function<Calendar()> calendar; ///< the user's calendar at the moment
        TrackerCore& tracker;
        SkillList& skills;
        NotificationCenter& notifications;
        SessionStatus& status;
    };
    explicit SessionReport(const Environment& environment);
    ~SessionReport() override;

private:
    /// What the log has of the day that begins then.
    struct LoggedToday {
        Date dayStart;
        std::int64_t seconds = 0;
    };

    [[nodiscard]] SessionStatus::Values read();
    [[nodiscard]] std::int64_t activeSeconds(std::int64_t now);
    [[nodiscard]] std::int64_t loggedToday(Date now);
    void noteChange();

    const Environment m_env;
    std::optional<LoggedToday> m_logged; ///< empty after a change of the log
    /// When the running clock was at 0, in whole seconds since 1970. Both counts are rounded, so
    /// clocks that start from two readings of one run would differ by a second.
    std::optional<std::int64_t> m_zero;
};

} // namespace vantle
