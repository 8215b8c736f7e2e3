// What the panel shows beside the session: due review, backfill, pulse.
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

/// Figures are as of the last refresh(), so that an open panel does not change under the pointer.
/// Main thread; nothing here fails.
class PanelState final : public QObject {
    Q_OBJECT

public:
    /// All of it must outlive this object.
    struct Environment {
        const Clock& clock;
        std::function<Calendar()> calendar; ///< the user's calendar at the moment
        const Preferences& preferences;
        NotificationCenter& notifications;
        TrackerCore& tracker;
        const IdleMonitor& idle;
    };
    explicit PanelState(const Environment& environment);

    /// Works out what the panel shows. Reads the log only after it has changed or a new week has
    /// begun: it may hold years.
    void refresh();

    /// A weekly review is due.
    [[nodiscard]] bool wrappedReady() const { return m_wrappedReady; }
    /// How many minutes back presence can be confirmed.
    [[nodiscard]] int backfillCoverageMinutes() const { return m_backfillCoverageMinutes; }
    /// The primary button is asked to pulse once. The view takes the wish back.
    [[nodiscard]] bool pulsePrimaryOnce() const { return m_pulsePrimaryOnce; }
    void setPulsePrimaryOnce(bool pulse);

Q_SIGNALS:
    void wrappedReadyChanged();
    void backfillCoverageMinutesChanged();
    void pulsePrimaryOnceChanged();

private:
    const Environment m_env;
    bool m_wrappedReady = false;
    /// Whether the week that starts then holds a review; forgotten when the log changes.
    std::optional<std::pair<Date, bool>> m_reviewOfWeek;
    int m_backfillCoverageMinutes = 0;
    bool m_pulsePrimaryOnce = false;
};

} // namespace vantle
