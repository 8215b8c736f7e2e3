// Screens that sleep and wake when the test says so.
#pragma once

#include "platform/ScreenPower.h"

namespace vantle::fakes {

class FakeScreenPower final : public ScreenPower {
public:
    [[nodiscard]] bool asleep() const override { return m_asleep; }

    /// Sends the notification each time, also when asleep already.
    void sleep() {
        m_asleep = true;
        Q_EMIT slept();
    }
    void wake() {
        m_asleep = false;
        Q_EMIT woke();
    }

    /// Sleeps without a notification, as screens do that slept before anybody listened.
    void beAsleep() { m_asleep = true; }

private:
    bool m_asleep = false;
};

} // namespace vantle::fakes
