// The machine's clock, with sleep added on top.
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

    Seconds slept{}; ///< in all, since the machine started

private:
    SystemClock m_clock;
};

} // namespace vantle::fakes
