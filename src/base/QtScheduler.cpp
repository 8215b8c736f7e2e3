#include "base/Rounding.h"
#include "base/Scheduler.h"

#include <QObject>
#include <QTimer>

#include <algorithm>

namespace vantle {

class QtScheduler::Target : public QObject {};

namespace {

/// Converts to what QTimer accepts: whole milliseconds, at least 0, at most about 24 days.
int timerInterval(Seconds interval) {
    constexpr std::int64_t kLongest = std::numeric_limits<int>::max();
    const std::int64_t milliseconds = roundedToInteger(interval.count() * 1000.0);
    return static_cast<int>(std::clamp<std::int64_t>(milliseconds, 0, kLongest));
}

class QtTimer final : public Timer {
public:
    QtTimer(Seconds interval, Seconds tolerance, bool repeats, std::function<void()> work)
        : m_timer(new QTimer) {
        // A coarse timer may be 5 % early or late. A precise one is used where that exceeds the
        // tolerance.
        const bool coarse = tolerance >= interval * 0.05 && tolerance > Seconds::zero();
        m_timer->setTimerType(coarse ? Qt::CoarseTimer : Qt::PreciseTimer);
        m_timer->setSingleShot(!repeats);
        QObject::connect(m_timer, &QTimer::timeout, m_timer, [work = std::move(work)] {
            // A copy, since the callback may destroy the timer and this closure with it.
            const std::function<void()> call = work;
            call();
        });
        m_timer->start(timerInterval(interval));
    }
    // Not deleted at once: this may run inside the timer's own signal.
    ~QtTimer() override {
        m_timer->stop();
        m_timer->disconnect();
        m_timer->deleteLater();
    }
    QtTimer(const QtTimer&) = delete;
    QtTimer& operator=(const QtTimer&) = delete;

private:
    QTimer* m_timer;
};

} // namespace

QtScheduler::QtScheduler() : m_target(std::make_unique<Target>()) {}
QtScheduler::~QtScheduler() = default;

TimerHandle QtScheduler::scheduleRepeatingTimer(Seconds every, Seconds tolerance,
                                                std::function<void()> work) {
    return std::make_unique<QtTimer>(every, tolerance, true, std::move(work));
}

TimerHandle QtScheduler::scheduleOnce(Seconds delay, std::function<void()> work) {
    return std::make_unique<QtTimer>(delay, Seconds::zero(), false, std::move(work));
}

void QtScheduler::post(std::function<void()> work) {
    QMetaObject::invokeMethod(m_target.get(), std::move(work), Qt::QueuedConnection);
}

} // namespace vantle
