// A desktop's keyboard, as far as the one combination is concerned.
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

    /// The desktop answers, takes the combination away, or gives it back; nothing when the attempt
    /// failed at once.
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

    // What the next attempt comes to.
    int installStatus = 0;
    Outcome outcome{Registration::Registered, 0};
    QString way; ///< that takes the user's word

    // What the user has said: in former runs, and in this one.
    QString recalled;
    std::optional<bool> isAllowed;

    // What is held now; more than one, or fewer than none, is a fault of the code under test.
    int handlers = 0;
    int keys = 0;

private:
    std::function<void()> m_pressed;
    bool m_isLost = false;
};

} // namespace vantle::fakes
