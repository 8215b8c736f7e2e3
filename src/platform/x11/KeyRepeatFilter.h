// The filter of key repeats from an X server.
#pragma once

#include <cstdint>

namespace vantle {

/// An X server reports a held key as releases that are each followed at once by a press, about 25
/// times a second. Requires the events of one combination in order; times in the server's
/// milliseconds, which wrap around. Any thread, one at a time.
class KeyRepeatFilter {
public:
    /// Returns whether this press is a new one.
    [[nodiscard]] bool pressed(std::uint8_t code, std::uint32_t time) {
        const bool repeats = m_down || (m_everReleased && code == m_code &&
                                        time - m_releaseTime <= kPairMilliseconds);
        m_down = true;
        return !repeats;
    }

    void released(std::uint8_t code, std::uint32_t time) {
        m_down = false;
        m_everReleased = true;
        m_code = code;
        m_releaseTime = time;
    }

private:
    /// Release and press of a repetition differ by at most one tick.
    static constexpr std::uint32_t kPairMilliseconds = 1;

    bool m_down = false;
    bool m_everReleased = false;
    std::uint8_t m_code = 0; ///< of the last release
    std::uint32_t m_releaseTime = 0;
};

} // namespace vantle
