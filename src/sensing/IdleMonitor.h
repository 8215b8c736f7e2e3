// Tells when the person goes away from keyboard and mouse, and when they are back.
#pragma once

#include "base/Clock.h"
#include "base/MissedTime.h"
#include "base/Scheduler.h"
#include "platform/IdleSource.h"
#include "platform/Preferences.h"
#include "platform/ScreenPower.h"
#include "sensing/IdleHistory.h"
#include "tracking/ActivityEvidence.h"

#include <functional>
#include <optional>

namespace vantle {

/// Reads the idle counter every ten seconds and keeps 45 minutes of readings. There is no hook into
/// single events: all is derived from the counter and from the screens going to sleep.
///
/// Where the desktop does not tell the counter, nothing is known: neither absence nor presence.
/// Such a reading takes no sample and changes nothing, so nobody is paused by it; and no stretch of
/// time in which it happened is ever confirmed by `wasActiveForLast`, so nobody is credited by it.
/// The same holds for a stretch in which the machine slept or the program was stopped.
///
/// Main thread, the callbacks included. Nothing here fails.
class IdleMonitor final : public ActivityEvidence {
    Q_OBJECT

public:
    static constexpr double pollInterval = 10.0; ///< seconds

    /// All must outlive the monitor. It is stopped at first.
    IdleMonitor(const Clock& clock, Scheduler& scheduler, IdleSource& source, ScreenPower& screens,
                const Preferences& preferences);
    ~IdleMonitor() override;

    /// From how many seconds without input on the person counts as away. Read from the preferences
    /// at each use, so a change holds from the next reading on.
    [[nodiscard]] double thresholdSeconds() const;

    /// Begins to watch, with a reading at once. Nothing when started already.
    void start();

    /// Ceases to watch. What is known so far, the away flag included, stays.
    void stop();

    [[nodiscard]] bool isStarted() const { return m_pollTimer != nullptr; }

    /// Whether the screens sleep or are locked: then nobody works, whatever the counter says.
    [[nodiscard]] bool screensSleep() const { return m_screensSleep; }

    /// Whether the person counts as away. Set before the callback that tells it.
    [[nodiscard]] bool isIdle() const { return m_isIdle; }

    /// How many whole minutes the readings reach back from `now`: no more can be confirmed.
    [[nodiscard]] int coverageMinutes(Date now) const { return m_history.coverageMinutes(now); }

    /// How many readings are kept.
    [[nodiscard]] std::size_t sampleCount() const { return m_history.size(); }

    [[nodiscard]] bool wasActiveForLast(int minutes) override;

    /// The counter, or nothing where it can't be told or where what it tells is no number. A
    /// negative reading, as from input stamped just after the question, counts as 0.
    [[nodiscard]] static std::optional<double> systemIdleSeconds(IdleSource& source);

    // Set once by the owner, which they must hold weakly.

    /// The person has been away for that many seconds. May be followed at once by
    /// `onActivityResumed`, when an absence began and ended between two readings.
    std::function<void(double seconds)> onIdleBegan;

    /// The person is back. Also after each sleep of the screens, whether or not anything was
    /// touched; if nothing was, `onIdleBegan` follows at once.
    std::function<void()> onActivityResumed;

    /// The screens went to sleep. The person counts as away, without `onIdleBegan`.
    std::function<void()> onScreensSlept;

    /// The screens are awake again and the person counts as back. Follows `onActivityResumed`,
    /// which may have come long before, from a reading while they still slept.
    std::function<void()> onScreensWoke;

    /// Readings in a row that show input while the screens are said to sleep, after which that is
    /// no longer believed: a locker may end without telling. More than a password takes.
    static constexpr int readingsThatWakeScreens = 6;

private:
    bool poll();
    void noteScreenSleep();
    void noteScreenWake();
    void doubtScreenSleep(double idle);
    void beginIdle(double seconds);
    void resumeActivity();

    const Clock& m_clock;
    Scheduler& m_scheduler;
    IdleSource& m_source;
    ScreenPower& m_screens;
    const Preferences& m_preferences;

    bool m_isIdle = false;
    IdleHistory m_history;
    std::optional<Date> m_lastScreenSleepAt;
    std::optional<Date> m_lastUnknownAt; ///< the end of the last time of which nothing is known
    MissedTime m_missed;                 ///< looked at with each reading
    bool m_screensSleep = false;
    int m_inputsInSleep = 0; ///< readings in a row that showed input since the screens slept
    TimerHandle m_pollTimer; ///< there exactly while started
    QMetaObject::Connection m_sleepObserver;
    QMetaObject::Connection m_wakeObserver;
};

} // namespace vantle
