#include "sensing/IdleMonitor.h"

#include "tracking/Settings.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantle {
namespace {

constexpr Seconds kPollTolerance{2.0};

// Larger than any reading and any threshold: the reading that follows shows input in any case.
constexpr double kPoison = std::numeric_limits<double>::max();

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
    m_missed.look(); // a time in which nobody watched was not missed
    m_screensSleep = m_screensSleep && m_screens.asleep();
    poll();
}

void IdleMonitor::stop() {
    m_pollTimer.reset();
    disconnect(m_sleepObserver);
    disconnect(m_wakeObserver);
}

std::optional<double> IdleMonitor::systemIdleSeconds(IdleSource& source) {
    const std::optional<double> reading = source.secondsSinceLastInput();
    if (!reading || !std::isfinite(*reading)) return std::nullopt;
    return std::max(*reading, 0.0);
}

bool IdleMonitor::poll() {
    // 1. Read the counter and the clock.
    const std::optional<double> idle = systemIdleSeconds(m_source);
    const IdleSample sample{m_clock.now(), idle.value_or(0.0)};
    const bool missed = m_missed.sinceLastLook().has_value();
    m_missed.look();
    if (!idle || missed) m_lastUnknownAt = sample.date;
    if (!idle) return false;

    // 2. A counter that fell shows input since the last reading. If it had grown past the
    //    threshold by then, the person was away and came back without any reading at the peak.
    //    Time that was missed is no such absence: the tracker cuts it out by itself, to the second,
    //    and what was worked since must not go with it.
    if (!missed && !m_history.empty() && showsInput(m_history.last(), sample)) {
        const double gap = std::max(gapBetween(m_history.last(), sample), 0.0);
        const double observed = m_history.last().idleSeconds + gap;
        if (observed >= thresholdSeconds()) {
            if (!m_isIdle) beginIdle(observed);
            resumeActivity();
        }
    }

    // 3. Keep the reading.
    m_history.add(sample);

    // 4. Forget what is too old to be asked about.
    m_history.forgetOld(sample.date);

    // 5. What the reading itself says.
    if (*idle >= thresholdSeconds()) {
        if (!m_isIdle) beginIdle(*idle);
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
    // 1. Remember when.
    m_lastScreenSleepAt = m_clock.now();

    // 2. Nobody is there to touch anything: the reading after the sleep ends an absence.
    m_history.add({*m_lastScreenSleepAt, kPoison});

    // 3. Away, but not by the counter: whoever listens hears of the sleep instead.
    m_isIdle = true;
    m_screensSleep = true;
    m_inputsInSleep = 0;

    // 4. Tell it.
    if (onScreensSlept) onScreensSlept();
}

void IdleMonitor::noteScreenWake() {
    m_screensSleep = false;
    const bool known = poll();
    // Where the counter can't be told, no later reading will end what the sleep began.
    if (!known && m_isIdle) resumeActivity();
    if (!m_isIdle && onScreensWoke) onScreensWoke();
}

void IdleMonitor::beginIdle(double seconds) {
    m_isIdle = true;
    if (onIdleBegan) onIdleBegan(seconds);
}

void IdleMonitor::resumeActivity() {
    m_isIdle = false;
    if (onActivityResumed) onActivityResumed();
}

bool IdleMonitor::wasActiveForLast(int minutes) {
    // 1. No stretch of time, nothing to confirm.
    if (minutes < 1) return false;

    // 2. The stretch begins here.
    const Date cutoff = m_clock.now() - Seconds(minutes * 60.0);

    // 3. Screens that slept in it, a counter that could not be told, or time of which nothing is
    //    known rule it out.
    if (m_lastScreenSleepAt && *m_lastScreenSleepAt >= cutoff) return false;
    if (m_lastUnknownAt && *m_lastUnknownAt >= cutoff - Seconds(IdleHistory::margin)) return false;
    if (isStarted() && m_missed.sinceLastLook()) return false;

    // 4. to 7. The readings show no absence.
    const double threshold = thresholdSeconds();
    if (!m_history.showsPresenceSince(cutoff, threshold)) return false;

    // 8. Nor is the person away right now, since the last reading.
    const std::optional<double> idle = systemIdleSeconds(m_source);
    return idle && *idle < threshold;
}

} // namespace vantle
