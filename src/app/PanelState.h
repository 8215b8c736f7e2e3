// The panel's state beside the session: due review, backfill, pulse.
#pragma once

#include "base/Calendar.h"

#include <QObject>

#include <functional>
#include <optional>
#include <utility>

namespace vantle {

class Clock;
class IdleMonitor;
class NotificationCenter;
class Preferences;
class TrackerCore;

/// Values change only in refresh(), so that an open panel does not change under the pointer. Does
/// not fail. Main thread.
class PanelState final : public QObject {
    Q_OBJECT

public:
    /// All of it must outlive this object.
    struct Environment {
        const Clock& clock;
        std::function<Calendar()> calendar; ///< returns the user's current calendar
        const Preferences& preferences;
        NotificationCenter& notifications;
        TrackerCore& tracker;
        const IdleMonitor& idle;
    };
    explicit PanelState(const Environment& environment);

    /// Computes the values. Reads the log, which may hold years, only after it changed or a new
    /// week began.
    void refresh();

    /// A weekly review is due.
    [[nodiscard]] bool wrappedReady() const { return m_wrappedReady; }
    /// How many minutes before now the user was present, as far as the idle counter confirms it.
    [[nodiscard]] int backfillCoverageMinutes() const { return m_backfillCoverageMinutes; }
    /// Asks the primary button to pulse once. The view resets it.
    [[nodiscard]] bool pulsePrimaryOnce() const { return m_pulsePrimaryOnce; }
    void setPulsePrimaryOnce(bool pulse);

Q_SIGNALS:
    void wrappedReadyChanged();
    void backfillCoverageMinutesChanged();
    void pulsePrimaryOnceChanged();

private:
    const Environment m_env;
    bool m_wrappedReady = false;
    /// Whether the week that starts at the date holds a review; reset when the log changes.
    std::optional<std::pair<Date, bool>> m_reviewOfWeek;
    int m_backfillCoverageMinutes = 0;
    bool m_pulsePrimaryOnce = false;
};

} // namespace vantle
