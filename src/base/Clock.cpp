#include "base/Clock.h"

#include <ctime>

namespace vantle {
namespace {

Seconds read(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return Seconds(static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9);
}

} // namespace

Date SystemClock::now() const {
    return std::chrono::time_point_cast<Seconds>(std::chrono::system_clock::now());
}

Clock::Uptime SystemClock::uptime() const {
    return {.total = read(CLOCK_BOOTTIME), .awake = read(CLOCK_MONOTONIC)};
}

} // namespace vantle
