// A desktop's keyboard, as far as the one combination is concerned.
#pragma once

#include "platform/HotKeyPort.h"

#include <utility>

namespace vantle::fakes {

class FakeHotKeyPort final : public HotKeyPort {
public:
    // HotKeyPort
    [[nodiscard]] int installHandler(std::function<void()> pressed) override {
        if (installStatus != 0) return installStatus;
        ++handlers;
        m_pressed = std::move(pressed);
        return 0;
    }
    void removeHandler() override {
        --handlers;
        m_pressed = nullptr;
    }
    [[nodiscard]] Outcome registerKey() override {
        if (outcome.registration == Registration::Registered) ++keys;
        return outcome;
    }
    void unregisterKey() override {
        --keys;
        m_isLost = false;
    }
    [[nodiscard]] bool hearsEveryApp() const override { return isHeardEverywhere; }

    /// The desktop takes the combination away, or gives it back; nothing when it was never taken.
    void become(const Outcome& now) {
        if (keys == 0) return;
        m_isLost = now.registration != Registration::Registered;
        if (onOutcomeChanged) onOutcomeChanged(now);
    }

    /// The person presses the combination. Whether anybody was there to hear it.
    bool press() {
        if (keys == 0 || m_isLost || !m_pressed) return false;
        m_pressed();
        return true;
    }

    // What the next attempt comes to.
    int installStatus = 0;
    Outcome outcome{Registration::Registered, 0};
    bool isHeardEverywhere = true;

    // What is held now; more than one, or fewer than none, is a fault of the code under test.
    int handlers = 0;
    int keys = 0;

private:
    std::function<void()> m_pressed;
    bool m_isLost = false;
};

} // namespace vantle::fakes
