// The dots of the grid, in front and behind: where each stands in the picture and how it looks at
// a given moment. Any thread; drawing is the business of whoever owns the canvas.
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
    /// The places and the colours of the model's dots on that canvas.
    CeremonyDots(const CeremonyGridModel& model, const CeremonyCanvas& canvas);

    /// The upper left corner of a dot's sprite, in pixels.
    struct Place {
        std::int32_t x = 0;
        std::int32_t y = 0;
    };

    /// The phase of a dot's twinkle. sin(x + phase) is a product and a sum then, so that a frame
    /// needs no sine for each dot.
    struct Wave {
        double sine = 0;
        double cosine = 0;
    };

    /// Paint what is alive at `t` seconds, in the order of the arrays. Model and canvas are those
    /// of the construction.
    void drawBack(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t) const;
    void drawFront(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t) const;

    [[nodiscard]] const CeremonyDotMasks& masks() const { return m_masks; }
    [[nodiscard]] const std::vector<Place>& frontPlaces() const { return m_frontPlaces; }
    [[nodiscard]] const std::vector<Place>& backPlaces() const { return m_backPlaces; }

    /// The colour of a dot that is just born: each channel raised by 0.45 of what is missing.
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
