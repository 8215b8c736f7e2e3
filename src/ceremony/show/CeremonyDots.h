// The dots of the grid: places, colours and drawing of both layers.
//
// Any thread; drawing is for the thread of the canvas.
#pragma once

#include "ceremony/show/CeremonyDotMasks.h"
#include "ceremony/show/CeremonyGridModel.h"

#include <array>
#include <cstdint>
#include <vector>

namespace vantle {

class CeremonyCanvas;

class CeremonyDots {
public:
    /// Computes places and colours of the model's dots on that canvas.
    CeremonyDots(const CeremonyGridModel& model, const CeremonyCanvas& canvas);

    /// The upper left corner of a dot's sprite, in pixels.
    struct Place {
        std::int32_t x = 0;
        std::int32_t y = 0;
    };

    /// The phase of a dot's twinkle as sine and cosine: sin(x + phase) is then two products and a
    /// sum, and a frame needs no sine per dot.
    struct Wave {
        double sine = 0;
        double cosine = 0;
    };

    /// Draw the dots alive at `t` seconds, in array order. Require the model and canvas of the
    /// construction.
    void drawBack(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t) const;
    void drawFront(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t) const;

    [[nodiscard]] const CeremonyDotMasks& masks() const { return m_masks; }
    [[nodiscard]] const std::vector<Place>& frontPlaces() const { return m_frontPlaces; }
    [[nodiscard]] const std::vector<Place>& backPlaces() const { return m_backPlaces; }

    /// Returns the colour of a newborn dot: each channel raised by 0.45 of the distance to white.
    [[nodiscard]] static std::uint32_t flashColor(std::uint32_t rgb);

private:
    CeremonyDotMasks m_masks;
    std::vector<Place> m_frontPlaces;
    std::vector<Place> m_backPlaces;
    std::vector<Wave> m_frontWaves;
    std::vector<Wave> m_backWaves;
    std::array<std::uint32_t, 5> m_palette{};
    std::array<std::uint32_t, 5> m_flashPalette{};
};

} // namespace vantle
