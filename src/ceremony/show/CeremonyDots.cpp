#include "ceremony/show/CeremonyDots.h"

#include "ceremony/show/CeremonyCanvas.h"
#include "ceremony/show/CeremonyPaletteRGB.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vantle {

namespace {

// Seconds in the life of a dot.
constexpr double kFlash = 0.13;
constexpr double kYoung = 0.3;
constexpr double kSettled = 0.32;
constexpr double kDying = 0.22;
constexpr double kFading = 0.3; // of a dot in the back layer

constexpr double kStrobe = 25; // half-cycles per second
constexpr double kSmall = 0.8; // brightness of a small dot relative to a large one

/// Opacities here stay below 1, so no clamping is needed.
int stampStrength(double alpha) { return static_cast<int>(alpha * 255); }

std::vector<CeremonyDots::Place> placesOf(const std::vector<std::int32_t>& indices,
                                          const CeremonyGridModel& model,
                                          const CeremonyCanvas& canvas, int side) {
    const double pitch = model.cell / canvas.scale();
    // A sprite larger than the canvas starts at its edge.
    const auto start = [&](int cell, int size) {
        const auto wanted = static_cast<int>(std::round(pitch * (cell + 0.5) - side / 2.0));
        return std::clamp(wanted, 0, std::max(size - side, 0));
    };
    std::vector<CeremonyDots::Place> places;
    places.reserve(indices.size());
    for (const std::int32_t index : indices)
        places.push_back({start(index % model.cols, canvas.width()),
                          start(index / model.cols, canvas.height())});
    return places;
}

std::vector<CeremonyDots::Wave> wavesOf(const std::vector<float>& phases) {
    std::vector<CeremonyDots::Wave> waves;
    waves.reserve(phases.size());
    for (const float phase : phases)
        waves.push_back({std::sin(double{phase}), std::cos(double{phase})});
    return waves;
}

/// sin(x + phase) for an x that many dots share.
class SharedSine {
public:
    explicit SharedSine(double x) : m_sine(std::sin(x)), m_cosine(std::cos(x)) {}
    [[nodiscard]] double at(const CeremonyDots::Wave& phase) const {
        return m_sine * phase.cosine + m_cosine * phase.sine;
    }

private:
    double m_sine;
    double m_cosine;
};

} // namespace

CeremonyDots::CeremonyDots(const CeremonyGridModel& model, const CeremonyCanvas& canvas)
    : m_masks(model.cell / canvas.scale())
    , m_frontPlaces(placesOf(model.fieldIndex, model, canvas, m_masks.side))
    , m_backPlaces(placesOf(model.backIndex, model, canvas, m_masks.side))
    , m_frontWaves(wavesOf(model.fieldPhase))
    , m_backWaves(wavesOf(model.backPhase)) {
    for (std::size_t i = 0; i < m_palette.size(); ++i) {
        m_palette[i] = canvas.packed(ceremonypalette::field[i]);
        m_flashPalette[i] = canvas.packed(flashColor(ceremonypalette::field[i]));
    }
}

std::uint32_t CeremonyDots::flashColor(std::uint32_t rgb) {
    std::uint32_t raised = 0;
    for (const int shift : {16, 8, 0}) {
        const std::uint32_t channel = rgb >> shift & 0xFF;
        const auto missing = static_cast<std::uint32_t>((255 - channel) * 0.45);
        raised |= (channel + missing) << shift;
    }
    return raised;
}

void CeremonyDots::drawBack(CeremonyCanvas& canvas, const CeremonyGridModel& model,
                            double t) const {
    const SharedSine sine(3 * t);
    const float* const births = model.backBorn.data();
    const float* const ends = model.backVanish.data();
    for (std::size_t i = 0, count = m_backPlaces.size(); i < count; ++i) {
        const double born = births[i];
        if (born > t) continue;
        const double past = t - double{ends[i]};
        if (past > kFading) continue;
        double alpha = 0;
        if (past > 0)
            alpha = (1 - past / kFading) * 0.16;
        else
            alpha = std::min(4 * (t - born), 1.0) * (0.05 * sine.at(m_backWaves[i]) + 0.11);
        m_masks.back.stamp(canvas, m_backPlaces[i].x, m_backPlaces[i].y,
                           m_palette[model.backColor[i]], stampStrength(alpha));
    }
}

void CeremonyDots::drawFront(CeremonyCanvas& canvas, const CeremonyGridModel& model,
                             double t) const {
    const SharedSine sine(5 * t);
    // Held in registers: the stamps write through a pointer that might be to the vectors
    // themselves.
    const float* const births = model.fieldBorn.data();
    const float* const ends = model.fieldVanish.data();
    for (std::size_t i = 0, count = m_frontPlaces.size(); i < count; ++i) {
        const double age = t - double{births[i]};
        const double past = t - double{ends[i]};
        if (age < 0 || past > kDying) continue;
        const auto stamp = [&](const CeremonyDotMask& mask, std::uint32_t color, double alpha) {
            mask.stamp(canvas, m_frontPlaces[i].x, m_frontPlaces[i].y, color, stampStrength(alpha));
        };
        const std::uint32_t color = m_palette[model.fieldColor[i]];
        if (past > 0) {
            const bool dark = (model.fieldFlicker[i] + static_cast<int>(kStrobe * past)) % 2 == 0;
            if (!dark) stamp(m_masks.small, color, (1 - past / kDying) * 0.7);
            continue;
        }
        if (age < kFlash) {
            stamp(m_masks.flash, m_flashPalette[model.fieldColor[i]], 1);
            continue;
        }
        const double twinkle = 0.3 * sine.at(m_frontWaves[i]);
        const double alpha = std::min(0.5 * std::max(1 - age / kSettled, 0.0) + twinkle + 0.5, 1.0);
        const bool young = age < kYoung;
        if (model.fieldBright[i] != 0)
            stamp(young ? m_masks.bigOver : m_masks.big, color, alpha);
        else
            stamp(young ? m_masks.smallOver : m_masks.small, color, alpha * kSmall);
    }
}

} // namespace vantle
