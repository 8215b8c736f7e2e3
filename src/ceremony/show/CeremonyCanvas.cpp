#include "ceremony/show/CeremonyCanvas.h"

#include "ceremony/show/CeremonyBlend.h"

#include <algorithm>
#include <cmath>

namespace vantle {

namespace {

using ceremonyblend::kLeastStrength;
using ceremonyblend::strengthOf;

constexpr double kMostPixels = 270000;
constexpr double kLeastScale = 3; // points per pixel
constexpr int kLeastSide = 8;     // pixels

/// Fainter opacities are invisible.
constexpr double kFaint = 0.004;

int sideInPixels(double points, double scale) {
    return std::max(static_cast<int>(std::ceil(points / scale)), kLeastSide);
}

int within(double coordinate, int size) {
    return std::clamp(static_cast<int>(coordinate), 0, size - 1);
}

std::uint32_t fourfold(int strength) {
    const int seen = strength < kLeastStrength ? 0 : strength;
    return static_cast<std::uint32_t>(seen) * 0x01010101U;
}

} // namespace

CeremonyCanvas::CeremonyCanvas(double widthInPoints, double heightInPoints, PixelOrder order)
    : m_scale(std::max(std::sqrt(widthInPoints * heightInPoints / kMostPixels), kLeastScale))
    , m_order(order) {
    m_width = sideInPixels(widthInPoints, m_scale);
    m_height = sideInPixels(heightInPoints, m_scale);
    m_centerX = widthInPoints / 2 / m_scale;
    m_centerY = heightInPoints / 2 / m_scale;
    m_centerColumn = within(m_centerX, m_width);
    m_centerRow = within(m_centerY, m_height);

    const auto count = static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height);
    m_pixels.resize(count);
    m_strengths.resize(static_cast<std::size_t>(m_width));
    m_distances.reserve(count);
    for (int y = 0; y < m_height; ++y) {
        const float dy = static_cast<float>(y) + 0.5F - static_cast<float>(m_centerY);
        for (int x = 0; x < m_width; ++x) {
            const float dx = static_cast<float>(x) + 0.5F - static_cast<float>(m_centerX);
            m_distances.push_back(std::sqrt(dx * dx + dy * dy));
        }
    }
}

std::uint32_t CeremonyCanvas::packed(std::uint32_t rgb) const {
    constexpr std::uint32_t kOpaque = 0xFF000000;
    if (m_order == PixelOrder::Bgra) return kOpaque | rgb;
    return kOpaque | (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
}

std::size_t CeremonyCanvas::offset(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_width) +
           static_cast<std::size_t>(column);
}

std::span<const float> CeremonyCanvas::distances(int row) const {
    return std::span(m_distances).subspan(offset(0, row), static_cast<std::size_t>(m_width));
}

void CeremonyCanvas::clear(int alpha) {
    std::ranges::fill(m_pixels, static_cast<std::uint32_t>(alpha) << 24);
}

void CeremonyCanvas::blendAll(std::uint32_t color, int strength) {
    if (strength < 1) return;
    ceremonyblend::blendSpan(m_pixels.data(), m_pixels.size(), color,
                             static_cast<unsigned>(strength));
}

void CeremonyCanvas::blendAt(int column, int row, std::uint32_t color, double alpha) {
    if (column < 0 || column >= m_width || row < 0 || row >= m_height) return;
    const int strength = strengthOf(alpha);
    if (strength < kLeastStrength) return;
    ceremonyblend::blend(m_pixels[offset(column, row)], color, static_cast<unsigned>(strength));
}

void CeremonyCanvas::blendRow(int row, std::uint32_t color, double alpha) {
    if (row < 0 || row >= m_height) return;
    const int strength = strengthOf(alpha);
    if (strength < kLeastStrength) return;
    ceremonyblend::blendSpan(m_pixels.data() + offset(0, row), static_cast<std::size_t>(m_width),
                             color, static_cast<unsigned>(strength));
}

void CeremonyCanvas::blendColumn(int column, std::uint32_t color, double alpha) {
    if (column < 0 || column >= m_width) return;
    for (int row = 0; row < m_height; ++row)
        blendAt(column, row, color, alpha);
}

void CeremonyCanvas::plot(double x, double y, std::uint32_t color, double alpha) {
    const double fx = x - 0.5;
    const double fy = y - 0.5;
    if (!(fx >= -1 && fx < m_width && fy >= -1 && fy < m_height)) return;
    const double left = std::floor(fx);
    const double top = std::floor(fy);
    const double right = fx - left;
    const double lower = fy - top;
    const int column = static_cast<int>(left);
    const int row = static_cast<int>(top);
    blendAt(column, row, color, (1 - right) * (1 - lower) * alpha);
    blendAt(column + 1, row, color, right * (1 - lower) * alpha);
    blendAt(column, row + 1, color, (1 - right) * lower * alpha);
    blendAt(column + 1, row + 1, color, right * lower * alpha);
}

void CeremonyCanvas::stampRing(double radius, double lineWidth, std::uint32_t color, double alpha) {
    if (!(radius > 1 && alpha > kFaint)) return;
    constexpr int kLeastSteps = 24;
    const double r = radius / m_scale;
    const int steps = std::max(static_cast<int>(r * 6.283), kLeastSteps);
    const double step = 6.28318 / steps;
    const double half = std::max(lineWidth / m_scale * 0.5, 0.35);
    const double inner = 0.8 * half;
    const double outer = 1.6 * half;
    double angle = 0;
    for (int i = 0; i < steps; ++i, angle += step) {
        const double dx = std::cos(angle);
        const double dy = std::sin(angle);
        const auto at = [&](double distance, double opacity) {
            plot(m_centerX + dx * distance, m_centerY + dy * distance, color, opacity);
        };
        at(r, alpha);
        at(r - inner, alpha * 0.5);
        at(r + inner, alpha * 0.5);
        at(r - outer, alpha * 0.14);
        at(r + outer, alpha * 0.14);
    }
}

CeremonyCanvas::Box CeremonyCanvas::centeredBox(double radius) const {
    const int half = static_cast<int>(radius) + 1;
    return {std::max(m_centerColumn - half, 0), std::max(m_centerRow - half, 0),
            std::min(m_centerColumn + half, m_width - 1),
            std::min(m_centerRow + half, m_height - 1)};
}

void CeremonyCanvas::drawCenteredGlow(double radius, std::uint32_t color, double centerAlpha) {
    if (!(radius > 1 && centerAlpha > kFaint)) return;
    const double r = radius / m_scale;
    const Box box = centeredBox(r);
    const auto count = static_cast<std::size_t>(box.right - box.left) + 1;
    for (int row = box.top; row <= box.bottom; ++row) {
        const float* distance = m_distances.data() + offset(box.left, row);
        for (std::size_t i = 0; i < count; ++i) {
            const double alpha = centerAlpha * std::max(1 - distance[i] / r, 0.0);
            m_strengths[i] = fourfold(strengthOf(alpha));
        }
        ceremonyblend::blendSpan(m_pixels.data() + offset(box.left, row), m_strengths.data(), count,
                                 color);
    }
}

} // namespace vantle
