// An idle counter set by the test.
#pragma once

#include "fakes/VirtualTime.h"
#include "platform/IdleSource.h"

#include <utility>

namespace vantle::fakes {

class FakeIdleSource final : public IdleSource {
public:
    explicit FakeIdleSource(const VirtualTime& time) : m_time(time) {}

    /// Returns `seconds` until changed.
    void fix(double seconds) { set(seconds, false); }

    /// Returns `seconds` plus the time since this call, sleep included.
    void growFrom(double seconds) { set(seconds, true); }

    /// The user touches the machine now, and not again.
    void touch() { growFrom(0); }

    /// Makes the counter unknown.
    void becomeUnknown() { m_base.reset(); }

    /// Sets whether an application keeps the session awake; empty where the counter shows none.
    void showInhibitor(std::optional<bool> shown) { m_inhibitor = shown; }

    /// Sets whether the desktop can tell at all.
    void setCanTell(bool canTell) {
        if (std::exchange(m_canTell, canTell) != canTell) Q_EMIT canTellChanged();
    }

    [[nodiscard]] std::optional<double> secondsSinceLastInput() override {
        if (!m_base || !m_canTell) return std::nullopt;
        return m_grows ? *m_base + m_time.uptime().total.count() - m_setAt : *m_base;
    }
    [[nodiscard]] bool canTell() const override { return m_canTell; }
    [[nodiscard]] std::optional<bool> isInhibited() const override { return m_inhibitor; }

private:
    void set(double seconds, bool grows) {
        m_base = seconds;
        m_grows = grows;
        m_setAt = m_time.uptime().total.count();
    }

    const VirtualTime& m_time;
    std::optional<double> m_base = 0.0;
    bool m_grows = false;
    double m_setAt = 0;
    bool m_canTell = true;
    std::optional<bool> m_inhibitor;
};

} // namespace vantle::fakes
