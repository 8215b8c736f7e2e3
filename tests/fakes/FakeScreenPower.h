// Screens whose sleep the test sets.
#pragma once

#include "platform/ScreenPower.h"

#include <utility>

namespace vantle::fakes {

class FakeScreenPower final : public ScreenPower {
public:
    [[nodiscard]] bool asleep() const override { return m_asleep; }

    void sleep() {
        if (!std::exchange(m_asleep, true)) Q_EMIT slept();
    }
    void wake() {
        if (std::exchange(m_asleep, false)) Q_EMIT woke();
    }

    /// Emits each time, also repeatedly, unlike the program's sources.
    void tellSleep() {
        m_asleep = true;
        Q_EMIT slept();
    }
    void tellWake() {
        m_asleep = false;
        Q_EMIT woke();
    }

    /// Sleeps without a signal, like screens that slept before the construction.
    void beAsleep() { m_asleep = true; }

private:
    bool m_asleep = false;
};

} // namespace vantle::fakes
