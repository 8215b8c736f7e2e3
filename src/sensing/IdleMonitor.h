// The detection of absence from keyboard and mouse.
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

/// Samples the idle counter every ten seconds and keeps 45 minutes of samples. Works from the
/// counter and the screens' sleep alone, without hooks into input events.
///
/// An unknown counter proves neither absence nor presence: it takes no sample and pauses no
/// session, and `wasActiveForLast` confirms no period that contains one. The same holds for periods
/// in which the machine slept or the program was stopped.
///
/// Does not fail. Main thread, the callbacks included.
class IdleMonitor final : public ActivityEvidence {
    Q_OBJECT

public:
    static constexpr double pollInterval = 10.0; ///< seconds

    /// All must outlive the monitor, which starts stopped.
    IdleMonitor(const Clock& clock, Scheduler& scheduler, IdleSource& source, ScreenPower& screens,
                const Preferences& preferences);
    ~IdleMonitor() override;

    /// Seconds without input after which the user counts as away. Read from the preferences at each
    /// use, so a change applies from the next sample.
    [[nodiscard]] double thresholdSeconds() const;

    /// Starts with a sample. Has no effect when started already.
    void start();

    /// Stops sampling. Keeps samples and away flag.
    void stop();

    [[nodiscard]] bool isStarted() const { return m_pollTimer != nullptr; }

    /// Takes a sample now, as the timer does. Returns whether the counter is known.
    bool poll();

    /// Makes the next sample report an absence that still goes on as one that begins: for work that
    /// was started in the middle of it, without input. Has no effect when the user is there.
    void reportAgain() { m_reportsAgain = m_isIdle; }

    /// Whether the screens sleep or are locked, which counts as absence whatever the counter says.
    [[nodiscard]] bool screensSleep() const { return m_screensSleep; }

    /// Whether the user counts as away. Set before the callback that reports it.
    [[nodiscard]] bool isIdle() const { return m_isIdle; }

    /// How many whole minutes before `now` the samples reach back: the longest period that can be
    /// confirmed.
    [[nodiscard]] int coverageMinutes(Date now) const { return m_history.coverageMinutes(now); }

    [[nodiscard]] std::size_t sampleCount() const { return m_history.size(); }

    [[nodiscard]] bool wasActiveForLast(int minutes) override;

    /// Returns the counter; empty when it is unknown or not a number. A negative value, from input
    /// just after the query, counts as 0.
    [[nodiscard]] static std::optional<double> systemIdleSeconds(IdleSource& source);

    // Callbacks, set once by the owner, which they must hold weakly.

    /// The user has been away for that many seconds. `onActivityResumed` may follow at once, when
    /// an absence began and ended between two samples.
    std::function<void(double seconds)> onIdleBegan;

    /// The user is back. Also called after each sleep of the screens, with or without input;
    /// without input `onIdleBegan` follows at once.
    std::function<void()> onActivityResumed;

    /// The screens went to sleep. The user counts as away, without `onIdleBegan`.
    std::function<void()> onScreensSlept;

    /// The screens are awake and the user counts as back. Called after `onActivityResumed`, which
    /// may come much earlier, from input while the screens slept.
    std::function<void()> onScreensWoke;

    /// Consecutive samples with input after which the screens no longer count as asleep: a screen
    /// locker may end without a signal. More than typing a password takes.
    static constexpr int readingsThatWakeScreens = 6;

private:
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
    bool m_reportsAgain = false;
    IdleHistory m_history;
    std::optional<Date> m_lastScreenSleepAt;
    std::optional<Date> m_lastUnknownAt; ///< end of the last unknown period
    MissedTime m_missed;                 ///< updated with each sample
    bool m_screensSleep = false;
    int m_inputsInSleep = 0; ///< consecutive samples with input since the screens slept
    TimerHandle m_pollTimer; ///< set while started
    QMetaObject::Connection m_sleepObserver;
    QMetaObject::Connection m_wakeObserver;
};

} // namespace vantle
