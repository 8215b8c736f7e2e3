#include "sensing/IdleMonitor.h"

#include "tracking/Settings.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantle {
namespace {

constexpr Seconds kPollTolerance{2.0};

// The sample at which the screens slept: greater than any reading and any threshold, so that the
// next reading always shows input.
constexpr double kScreenSleepSample = std::numeric_limits<double>::max();

std::optional<double> checked(std::optional<double> reading) {
    if (!reading || !std::isfinite(*reading)) return std::nullopt;
    return std::max(*reading, 0.0);
}

} // namespace

IdleMonitor::IdleMonitor(const Clock& clock, Scheduler& scheduler, IdleSource& source,
                         ScreenPower& screens, const Preferences& preferences)
    : m_clock(clock)
    , m_scheduler(scheduler)
    , m_source(source)
    , m_screens(screens)
    , m_preferences(preferences)
    , m_missed(clock, Seconds(pollInterval)) {}

IdleMonitor::~IdleMonitor() { stop(); }

double IdleMonitor::thresholdSeconds() const {
    return settings::idleThresholdSeconds.read(m_preferences);
}

void IdleMonitor::start() {
    if (isStarted()) return;
    m_pollTimer = m_scheduler.scheduleRepeatingTimer(Seconds(pollInterval), kPollTolerance,
                                                     [this] { poll(); });
    m_sleepObserver = connect(&m_screens, &ScreenPower::slept, this, &IdleMonitor::noteScreenSleep);
    m_wakeObserver = connect(&m_screens, &ScreenPower::woke, this, &IdleMonitor::noteScreenWake);
    m_missed.look(); // time before the start was not observed and is not missed
    m_screensSleep = m_screensSleep && m_screens.asleep();
    poll();
}

void IdleMonitor::stop() {
    m_pollTimer.reset();
    disconnect(m_sleepObserver);
    disconnect(m_wakeObserver);
}

std::optional<double> IdleMonitor::systemIdleSeconds(IdleSource& source) {
    return checked(source.secondsSinceLastInput());
}

bool IdleMonitor::poll() {
    // A call goes on behind a locked screen, where it says nothing about the user.
    const std::optional<double> idle =
        m_screensSleep ? checked(m_source.secondsSinceKeyOrPointer()) : systemIdleSeconds(m_source);
    const IdleSample sample{m_clock.now(), idle.value_or(0.0)};
    const bool missed = m_missed.sinceLastLook().has_value();
    m_missed.look();
    if (!idle || missed) m_lastUnknownAt = sample.date;
    if (!idle) return false;

    // A counter that fell shows input since the last sample. If it had passed the threshold by
    // then, the user was away and came back between two samples.
    // Missed time is no such absence: the tracker itself cuts it out to the second, and must not
    // lose the work after it.
    if (!missed && !m_history.empty() && showsInput(m_history.last(), sample)) {
        const double gap = std::max(gapBetween(m_history.last(), sample), 0.0);
        const double observed = m_history.last().idleSeconds + gap;
        if (observed >= thresholdSeconds()) {
            if (!m_isIdle) beginIdle(observed);
            resumeActivity();
        }
    }

    m_history.add(sample);

    m_history.forgetOld(sample.date);

    // Presence or absence by this reading alone.
    if (*idle >= thresholdSeconds()) {
        if (!m_isIdle || m_reportsAgain) beginIdle(*idle);
    } else if (m_isIdle) {
        resumeActivity();
    }
    doubtScreenSleep(*idle);
    return true;
}

void IdleMonitor::doubtScreenSleep(double idle) {
    m_inputsInSleep = m_screensSleep && idle < pollInterval ? m_inputsInSleep + 1 : 0;
    if (m_inputsInSleep < readingsThatWakeScreens) return;
    m_screensSleep = false;
    if (onScreensWoke) onScreensWoke();
}

void IdleMonitor::noteScreenSleep() {
    m_lastScreenSleepAt = m_clock.now();

    // No input counts while the screens sleep, so the next reading ends an absence.
    m_history.add({*m_lastScreenSleepAt, kScreenSleepSample});

    // Away without `onIdleBegan`: `onScreensSlept` reports it.
    m_isIdle = true;
    m_screensSleep = true;
    m_inputsInSleep = 0;

    if (onScreensSlept) onScreensSlept();
}

void IdleMonitor::noteScreenWake() {
    m_screensSleep = false;
    const bool known = poll();
    // With an unknown counter no later reading would end the absence.
    if (!known && m_isIdle) resumeActivity();
    if (!m_isIdle && onScreensWoke) onScreensWoke();
}

void IdleMonitor::beginIdle(double seconds) {
    m_isIdle = true;
    m_reportsAgain = false;
    if (onIdleBegan) onIdleBegan(seconds);
}

void IdleMonitor::resumeActivity() {
    m_isIdle = false;
    m_reportsAgain = false;
    if (onActivityResumed) onActivityResumed();
}

bool IdleMonitor::wasActiveForLast(int minutes) {
    if (minutes < 1) return false;

    const Date cutoff = m_clock.now() - Seconds(minutes * 60.0);

    // Unconfirmed when the screens slept, the counter was unknown, or the program was not running
    // in that time.
    if (m_lastScreenSleepAt && *m_lastScreenSleepAt >= cutoff) return false;
    if (m_lastUnknownAt && *m_lastUnknownAt >= cutoff - Seconds(IdleHistory::margin)) return false;
    if (isStarted() && m_missed.sinceLastLook()) return false;

    const double threshold = thresholdSeconds();
    if (!m_history.showsPresenceSince(cutoff, threshold)) return false;

    // Nor is the user away since the last sample.
    const std::optional<double> idle = systemIdleSeconds(m_source);
    return idle && *idle < threshold;
}

} // namespace vantle
