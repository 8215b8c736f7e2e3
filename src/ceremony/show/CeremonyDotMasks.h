// How much of each pixel a dot covers, for the six sizes of dots. Plain values, any thread.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace vantle {

class CeremonyCanvas;

/// The coverage of one sort of dot: side x side bytes, row by row.
class CeremonyDotMask {
public:
    /// A disc of `radius` pixels in the middle of a square of `side`, with a soft edge and a faint
    /// halo of `halo` times its strength.
    CeremonyDotMask(int side, double radius, double halo);

    [[nodiscard]] int side() const { return m_side; }
    [[nodiscard]] const std::vector<std::uint8_t>& coverage() const { return m_coverage; }

    /// Blends the dot with its upper left corner at (x, y); what lies outside is left out.
    /// `strength` is 0 to 255.
    void stamp(CeremonyCanvas& canvas, int x, int y, std::uint32_t color, int strength) const;

private:
    int m_side;
    std::vector<std::uint8_t> m_coverage;
};

struct CeremonyDotMasks {
    /// For a grid pitch in pixels.
    explicit CeremonyDotMasks(double pitch);

    /// Odd, 5 to 9: twice the pitch.
    [[nodiscard]] static int sideFor(double pitch);

    int side;
    CeremonyDotMask back;
    CeremonyDotMask small;
    CeremonyDotMask smallOver; ///< while it is young
    CeremonyDotMask big;
    CeremonyDotMask bigOver;
    CeremonyDotMask flash; ///< while it is just born
};

} // namespace vantle
