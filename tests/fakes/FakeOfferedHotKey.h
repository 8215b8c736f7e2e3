// A way to the shortcut whose offer the test sets.
#pragma once

#include "fakes/FakeHotKeyPort.h"
#include "platform/OfferedHotKey.h"

#include <optional>
#include <utility>

namespace vantle::fakes {

/// Everything except the offer is `port`'s.
class FakeOfferedHotKey final : public OfferedHotKey {
public:
    explicit FakeOfferedHotKey(std::optional<bool> isOffered) : m_isOffered(isOffered) {
        port.onOutcomeChanged = [this](const Outcome& outcome) {
            if (onOutcomeChanged) onOutcomeChanged(outcome);
        };
    }

    // OfferedHotKey
    [[nodiscard]] std::optional<bool> isOffered() const override { return m_isOffered; }
    [[nodiscard]] int installHandler(std::function<void()> pressed) override {
        return port.installHandler(std::move(pressed));
    }
    void removeHandler() override { port.removeHandler(); }
    [[nodiscard]] Outcome registerKey() override { return port.registerKey(); }
    void unregisterKey() override { port.unregisterKey(); }
    [[nodiscard]] QString wayToAllow() const override { return port.wayToAllow(); }
    void recallAllowed(const QString& way) override { port.recallAllowed(way); }
    [[nodiscard]] Outcome allow(bool allowed) override { return port.allow(allowed); }

    /// The service appears or disappears.
    void offer(bool isOffered) {
        m_isOffered = isOffered;
        if (onOfferedChanged) onOfferedChanged();
    }

    FakeHotKeyPort port;

private:
    std::optional<bool> m_isOffered;
};

} // namespace vantle::fakes
