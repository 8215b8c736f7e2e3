// The pixel coverage of dots, in six sizes.
//
// Plain values, any thread.
#pragma once

#include "ceremony/show/CeremonyBlend.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vantle {

class CeremonyCanvas;

/// The coverage of one kind of dot.
class CeremonyDotMask {
public:
    /// A disc of `radius` pixels centred in a square of `side`, with a soft edge and a halo of at
    /// most `halo` (0 to 1).
    CeremonyDotMask(int side, double radius, double halo);

    /// side x side bytes, row by row.
    [[nodiscard]] const std::vector<std::uint8_t>& coverage() const { return m_coverage; }

    /// Blends the dot with its upper left corner at (x, y) and a strength of 0 to 255; clipped.
    void stamp(CeremonyCanvas& canvas, int x, int y, std::uint32_t color, int strength) const;

private:
    /// Returns the index of a pixel in the coverage.
    [[nodiscard]] std::size_t place(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_side) +
               static_cast<std::size_t>(x);
    }
    void prepareRows();
    void stampClipped(CeremonyCanvas& canvas, int x, int y, std::uint32_t color,
                      unsigned strength) const;

    int m_side;
    const ceremonyblend::Loops* m_loops; ///< never null
    std::vector<std::uint8_t> m_coverage;

    // The covered rows for ceremonyblend's stampRows: eight pixels from m_left on, with a weight
    // (coverage + 1, or 0) for each channel. Empty when the dot is wider than eight pixels.
    std::vector<std::uint16_t> m_weights;
    int m_left = 0;
    int m_top = 0;
    int m_rows = 0;
};

struct CeremonyDotMasks {
    /// For a grid with `pitch` pixels.
    explicit CeremonyDotMasks(double pitch);

    /// Returns the side of a dot's sprite: about two pitches, odd, 5 to 9 pixels.
    [[nodiscard]] static int sideFor(double pitch);

    int side;
    CeremonyDotMask back;
    CeremonyDotMask small;
    CeremonyDotMask smallOver; ///< while the dot is young
    CeremonyDotMask big;
    CeremonyDotMask bigOver;
    CeremonyDotMask flash; ///< just after birth
};

} // namespace vantle
