// Tells the press of a shortcut from those that follow while it is held down.
#pragma once

#include "base/Clock.h"

#include <utility>

namespace vantle {

/// Services of shortcuts repeat a press about 25 times a second while the key is held, and tell the
/// release once. Of a service that has told no release so far, a press counts a second after the
/// last one. Main thread.
class HeldKey {
public:
    /// `clock` must outlive this.
    explicit HeldKey(const Clock& clock) : m_clock(clock) {}

    /// Whether this press is a new one.
    [[nodiscard]] bool pressed() {
        const Seconds now = m_clock.uptime().awake;
        const bool isLate = !m_tellsReleases && now - m_lastPress > kLongestPause;
        m_lastPress = now;
        return !std::exchange(m_isDown, true) || isLate;
    }
    void released() {
        m_isDown = false;
        m_tellsReleases = true;
    }
    /// Nothing of what was told before counts.
    void forget() { m_isDown = m_tellsReleases = false; }

private:
    /// Longer than the usual pause before a held key repeats.
    static constexpr Seconds kLongestPause{1.0};

    const Clock& m_clock;
    bool m_isDown = false;
    bool m_tellsReleases = false;
    Seconds m_lastPress{};
};

} // namespace vantle
