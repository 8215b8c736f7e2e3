// The machine's clock plus a sleep set by the test.
#pragma once

#include "base/Clock.h"

namespace vantle::fakes {

class SleptClock final : public Clock {
public:
    [[nodiscard]] Date now() const override { return m_clock.now() + slept; }
    [[nodiscard]] Uptime uptime() const override {
        Uptime uptime = m_clock.uptime();
        uptime.total += slept;
        return uptime;
    }

    Seconds slept{}; ///< since boot

private:
    SystemClock m_clock;
};

} // namespace vantle::fakes
