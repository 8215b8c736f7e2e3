// Reproducible shows and their frames.
#pragma once

#include "ceremony/show/CeremonyFrameRenderer.h"
#include "fakes/SplitMixRandom.h"

#include <array>
#include <cstdint>

namespace vantle::tests {

struct Rgba {
    int red = 0;
    int green = 0;
    int blue = 0;
    int alpha = 0;
    friend bool operator==(const Rgba&, const Rgba&) = default;
};

inline Rgba pixel(const CeremonyFrameRenderer& renderer, int x, int y) {
    const std::uint32_t value =
        renderer.fieldBuffer()[static_cast<std::size_t>(y * renderer.bufferWidth() + x)];
    const auto byte = [value](int index) { return static_cast<int>(value >> (8 * index) & 0xFF); };
    return {byte(0), byte(1), byte(2), byte(3)};
}

/// Whether all pixels of the frame are equal.
inline bool isUniform(const CeremonyFrameRenderer& renderer) {
    for (const std::uint32_t value : renderer.fieldBuffer())
        if (value != renderer.fieldBuffer().front()) return false;
    return true;
}

inline void giveTitle(CeremonyGridModel& model) {
    model.titleImage = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
}

inline CeremonyFrameRenderer sampleShow(CeremonyVariant variant, QSizeF size) {
    fakes::SplitMixRandom random(2026);
    CeremonyGridModel model = CeremonyGridModel::choreograph(variant, size, random);
    giveTitle(model);
    return CeremonyFrameRenderer(std::move(model));
}

/// A show without dots on a screen of that size.
inline CeremonyGridModel emptyModel(CeremonyVariant variant, QSizeF size = {300, 240}) {
    const CeremonyGrid grid = CeremonyGrid::forScreen(size);
    CeremonyGridModel model;
    model.variant = variant;
    model.width = grid.width;
    model.height = grid.height;
    model.cols = grid.cols;
    model.rows = grid.rows;
    model.cell = grid.cell;
    return model;
}

} // namespace vantle::tests
