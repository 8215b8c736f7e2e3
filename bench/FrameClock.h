// The clocks of benchmarks that watch a view.
#pragma once

#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <ctime>

namespace vantle::bench {

/// Returns the time in ms.
inline double now() {
    using namespace std::chrono;
    return duration<double, std::milli>(steady_clock::now().time_since_epoch()).count();
}

/// Returns the processor time of all threads, in ms.
inline double processorNow() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

/// Runs the event loop for that time.
inline void runFor(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace vantle::bench
