// The shake of the screen after the burst.
//
// A plain value, any thread.
#pragma once

#include <cstdint>

namespace vantle {

class CeremonyShake {
public:
    struct Offset {
        double dx = 0; ///< points
        double dy = 0; ///< points
    };

    /// Returns the offset at `t` seconds. Each call during the shake takes two numbers of a
    /// sequence that is the same for every show, so an extra call shifts all later ones.
    [[nodiscard]] Offset at(double t);

    [[nodiscard]] std::uint64_t state() const { return m_state; }

private:
    std::uint64_t m_state = 0x243F6A8885A308D3;
};

} // namespace vantle
