#include "base/Clock.h"

namespace vantle {

Date SystemClock::now() const {
    return std::chrono::time_point_cast<Seconds>(std::chrono::system_clock::now());
}

} // namespace vantle
