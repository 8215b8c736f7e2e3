// The filter of key repeats from a shortcut service.
#pragma once

#include "base/Clock.h"

#include <utility>

namespace vantle {

/// Services repeat a press about 25 times a second while the key is held, and report the release
/// once. Until a service has reported a release, a press counts one second after the last. Main
/// thread.
class HeldKey {
public:
    /// `clock` must outlive this.
    explicit HeldKey(const Clock& clock) : m_clock(clock) {}

    /// Returns whether this press is a new one.
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
    /// Forgets all earlier events.
    void forget() { m_isDown = m_tellsReleases = false; }

private:
    /// Longer than the usual delay of key repeat.
    static constexpr Seconds kLongestPause{1.0};

    const Clock& m_clock;
    bool m_isDown = false;
    bool m_tellsReleases = false;
    Seconds m_lastPress{};
};

} // namespace vantle
