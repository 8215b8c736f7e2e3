#include "ceremony/show/CeremonyDotMasks.h"

#include "ceremony/show/CeremonyCanvas.h"

#include <algorithm>
#include <cmath>

namespace vantle {

namespace {

constexpr int kSamples = 4;       // per pixel, in each direction
constexpr int kLeastCoverage = 3; // fainter coverage is not painted

using ceremonyblend::kRowPixels;
using ceremonyblend::kRowWeights;

double sample(double x, double y, double center, double radius, double halo) {
    const double distance = std::hypot(x - center, y - center);
    const double core = std::clamp((radius + 0.4 - distance) / 0.8, 0.0, 1.0);
    const double fall = std::max(1 - distance / std::min(center - 0.1, 2.1 * radius), 0.0);
    return std::min(core + halo * fall * fall, 1.0);
}

std::uint8_t coverageOf(int x, int y, double center, double radius, double halo) {
    double sum = 0;
    for (int i = 0; i < kSamples; ++i)
        for (int j = 0; j < kSamples; ++j)
            sum += sample(x + (j + 0.5) / kSamples, y + (i + 0.5) / kSamples, center, radius, halo);
    const int byte = static_cast<int>(std::lround(sum / (kSamples * kSamples) * 255));
    return static_cast<std::uint8_t>(std::min(byte, 255));
}

/// Returns the strength of a covered pixel of a dot with `strength`.
unsigned strengthAt(unsigned weight, unsigned strength) {
    const unsigned scaled = strength * weight >> 8;
    return scaled < ceremonyblend::kLeastStrength ? 0 : scaled;
}

std::uint16_t weightOf(std::uint8_t coverage) {
    return coverage < kLeastCoverage ? std::uint16_t{0} : static_cast<std::uint16_t>(coverage + 1);
}

} // namespace

CeremonyDotMask::CeremonyDotMask(int side, double radius, double halo)
    : m_side(side)
    , m_loops(&ceremonyblend::loops()) {
    m_coverage.reserve(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            m_coverage.push_back(coverageOf(x, y, side / 2.0, radius, halo));
    prepareRows();
}

void CeremonyDotMask::prepareRows() {
    int left = m_side;
    int right = -1;
    int top = m_side;
    int bottom = -1;
    const auto weight = [this](int x, int y) { return weightOf(m_coverage[place(x, y)]); };
    for (int y = 0; y < m_side; ++y) {
        for (int x = 0; x < m_side; ++x) {
            if (weight(x, y) == 0) continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = y;
        }
    }
    // Eight pixels must fit into the sprite, which lies within the canvas.
    m_left = std::min(left, m_side - kRowPixels);
    if (m_left < 0 || right >= m_left + kRowPixels) return;
    m_top = top;
    m_rows = bottom - top + 1;
    m_weights.resize(static_cast<std::size_t>(m_rows) * kRowWeights);
    std::uint16_t* row = m_weights.data();
    for (int y = top; y <= bottom; ++y, row += kRowWeights)
        for (std::size_t i = 0; i < kRowWeights; ++i)
            row[ceremonyblend::weightIndex(i)] = weight(m_left + static_cast<int>(i / 4), y);
}

void CeremonyDotMask::stamp(CeremonyCanvas& canvas, int x, int y, std::uint32_t color,
                            int strength) const {
    const bool inside =
        x >= 0 && y >= 0 && x + m_side <= canvas.width() && y + m_side <= canvas.height();
    if (!inside || m_weights.empty()) {
        stampClipped(canvas, x, y, color, static_cast<unsigned>(strength));
        return;
    }
    const auto stride = static_cast<std::size_t>(canvas.width());
    std::uint32_t* corner = canvas.pixels().data() + static_cast<std::size_t>(y + m_top) * stride +
                            static_cast<std::size_t>(x + m_left);
    m_loops->stampRows(corner, stride, m_weights.data(), m_rows, color,
                       static_cast<unsigned>(strength));
}

void CeremonyDotMask::stampClipped(CeremonyCanvas& canvas, int x, int y, std::uint32_t color,
                                   unsigned strength) const {
    const int firstColumn = std::max(0, -x);
    const int endColumn = std::min(m_side, canvas.width() - x);
    const int firstRow = std::max(0, -y);
    const int endRow = std::min(m_side, canvas.height() - y);
    for (int row = firstRow; row < endRow; ++row) {
        for (int column = firstColumn; column < endColumn; ++column) {
            const auto weight = weightOf(m_coverage[place(column, row)]);
            const auto pixel =
                static_cast<std::size_t>(y + row) * static_cast<std::size_t>(canvas.width()) +
                static_cast<std::size_t>(x + column);
            ceremonyblend::blend(canvas.pixels()[pixel], color, strengthAt(weight, strength));
        }
    }
}

int CeremonyDotMasks::sideFor(double pitch) {
    return std::clamp(static_cast<int>(std::round(2 * pitch)) | 1, 5, 9);
}

CeremonyDotMasks::CeremonyDotMasks(double pitch)
    : side(sideFor(pitch))
    , back(side, 0.18 * pitch, 0.08)
    , small(side, 0.3 * pitch, 0.15)
    , smallOver(side, 0.345 * pitch, 0.17)
    , big(side, 0.4 * pitch, 0.2)
    , bigOver(side, 0.46 * pitch, 0.22)
    , flash(side, 0.5 * pitch, 0.38) {}

} // namespace vantle
