// The keyboard of a desktop, for the one combination.
#pragma once

#include "platform/HotKeyPort.h"

#include <optional>
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
        if (outcome.registration == Registration::HeldByAnother ||
            outcome.registration == Registration::Failed)
            return outcome;
        ++keys;
        m_isLost = outcome.registration != Registration::Registered;
        return outcome;
    }
    void unregisterKey() override {
        --keys;
        m_isLost = false;
    }
    [[nodiscard]] QString wayToAllow() const override { return way; }
    void recallAllowed(const QString& allowedWay) override { recalled = allowedWay; }
    [[nodiscard]] Outcome allow(bool allowed) override {
        isAllowed = allowed;
        const Outcome answer{allowed ? Registration::Waiting : Registration::NotAllowed};
        m_isLost = true;
        return answer;
    }

    /// Reports another outcome, unless the attempt failed at once.
    void become(const Outcome& now) {
        if (keys == 0) return;
        m_isLost = now.registration != Registration::Registered;
        if (onOutcomeChanged) onOutcomeChanged(now);
    }

    /// The user presses the combination. Returns whether a handler was installed.
    bool press() {
        if (keys == 0 || m_isLost || !m_pressed) return false;
        m_pressed();
        return true;
    }

    // The result of the next attempt.
    int installStatus = 0;
    Outcome outcome{Registration::Registered, 0};
    QString way; ///< needs the user's consent

    // The user's consent, from earlier runs and from this one.
    QString recalled;
    std::optional<bool> isAllowed;

    // What is held now; another value than 0 or 1 is a fault of the code under test.
    int handlers = 0;
    int keys = 0;

private:
    std::function<void()> m_pressed;
    bool m_isLost = false;
};

} // namespace vantle::fakes
