// Tells the press of a key from the repetitions that a held key makes.
#pragma once

#include <cstdint>

namespace vantle {

/// An X server tells a held key as releases each followed at once by a press, about 25 times a
/// second. Fed with the presses and releases of one combination in their order; times in the
/// server's milliseconds, which wrap around.
class KeyRepeatFilter {
public:
    /// Whether this press is a new one.
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
    /// Release and press of a repetition carry the same time, or differ by the tick between them.
    static constexpr std::uint32_t kPairMilliseconds = 1;

    bool m_down = false;
    bool m_everReleased = false;
    std::uint8_t m_code = 0; ///< released last
    std::uint32_t m_releaseTime = 0;
};

} // namespace vantle
