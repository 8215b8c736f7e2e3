#include "ceremony/show/CeremonyCanvas.h"

#include "ceremony/show/CeremonyBlend.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

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

/// Inline, which std::floor is not for processors of the first generation.
int floored(double coordinate) {
    const int whole = static_cast<int>(coordinate);
    return coordinate < whole ? whole - 1 : whole;
}

int painted(int strength) { return strength < kLeastStrength ? 0 : strength; }

/// A point's share of two by two pixels: of the right column and of the lower row.
struct Spread {
    double right;
    double lower;
};

#ifdef __SSE2__

/// Blends the four pixels at once, with the same roundings as one by one.
void blendSquare(std::uint32_t* upper, std::uint32_t* lower, std::uint32_t color, Spread spread,
                 double alpha) {
    const __m128d columns = _mm_setr_pd(1 - spread.right, spread.right);
    const auto strengths = [&](double row) {
        const __m128d opacities =
            _mm_mul_pd(_mm_mul_pd(columns, _mm_set1_pd(row)), _mm_set1_pd(alpha));
        return _mm_cvttpd_epi32(_mm_mul_pd(opacities, _mm_set1_pd(255)));
    };
    const __m128i exact = _mm_unpacklo_epi64(strengths(1 - spread.lower), strengths(spread.lower));
    const __m128i four = _mm_min_epi16(_mm_packs_epi32(exact, exact), _mm_set1_epi16(255));
    const __m128i seen =
        _mm_and_si128(four, _mm_cmpgt_epi16(four, _mm_set1_epi16(kLeastStrength - 1)));
    const __m128i pairs = _mm_unpacklo_epi16(seen, seen);
    // Channels stand in the upper bytes of 16 bits: the upper half of a product is its 256th part.
    const __m128i zero = _mm_setzero_si128();
    const __m128i source = _mm_unpacklo_epi8(zero, _mm_set1_epi32(static_cast<int>(color)));
    const auto blended = [&](const std::uint32_t* place, __m128i strength) {
        const __m128i picture =
            _mm_unpacklo_epi8(zero, _mm_loadl_epi64(reinterpret_cast<const __m128i*>(place)));
        const __m128i keep = _mm_sub_epi16(_mm_set1_epi16(256), strength);
        const __m128i add = _mm_add_epi16(strength, _mm_set1_epi16(1));
        return _mm_add_epi16(_mm_mulhi_epu16(picture, keep), _mm_mulhi_epu16(source, add));
    };
    const __m128i both = _mm_packus_epi16(blended(upper, _mm_shuffle_epi32(pairs, 0x50)),
                                          blended(lower, _mm_shuffle_epi32(pairs, 0xFA)));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(upper), both);
    _mm_storel_epi64(reinterpret_cast<__m128i*>(lower), _mm_srli_si128(both, 8));
}

#else

void blendSquare(std::uint32_t* upper, std::uint32_t* lower, std::uint32_t color, Spread spread,
                 double alpha) {
    const auto blend = [&](std::uint32_t& pixel, double share) {
        ceremonyblend::blend(pixel, color,
                             static_cast<unsigned>(painted(strengthOf(share * alpha))));
    };
    blend(upper[0], (1 - spread.right) * (1 - spread.lower));
    blend(upper[1], spread.right * (1 - spread.lower));
    blend(lower[0], (1 - spread.right) * spread.lower);
    blend(lower[1], spread.right * spread.lower);
}

#endif

/// The directions from the centre in which points at some distance or farther can be on the canvas.
/// Angles are folded into a quarter turn. Errs towards more by a pixel or two.
class VisibleAngles {
public:
    /// `distance` and the reach from the centre to the farther edges in pixels.
    VisibleAngles(double distance, double reachX, double reachY)
        : m_first(distance > reachX ? std::acos(reachX / distance) : 0)
        , m_last(distance > reachY ? std::asin(reachY / distance) : kQuarter) {}

    /// Requires an angle of 0 to a full turn.
    [[nodiscard]] bool contain(double angle) const {
        double folded = angle > 2 * kQuarter ? angle - 2 * kQuarter : angle;
        if (folded > kQuarter) folded = 2 * kQuarter - folded;
        return folded >= m_first && folded <= m_last;
    }
    [[nodiscard]] bool areNone() const { return m_first > m_last; }

private:
    static constexpr double kQuarter = std::numbers::pi / 2;
    double m_first;
    double m_last;
};

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
    for (Glow& glow : m_glows)
        glow.strengths.resize(count);
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
    ceremonyblend::loops().blendEvenly(m_pixels.data(), m_pixels.size(), color,
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
    ceremonyblend::loops().blendEvenly(m_pixels.data() + offset(0, row),
                                       static_cast<std::size_t>(m_width), color,
                                       static_cast<unsigned>(strength));
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
    const int column = floored(fx);
    const int row = floored(fy);
    const double right = fx - column;
    const double lower = fy - row;
    if (column >= 0 && row >= 0 && column + 1 < m_width && row + 1 < m_height) {
        std::uint32_t* const upper = m_pixels.data() + offset(column, row);
        return blendSquare(upper, upper + m_width, color, {right, lower}, alpha);
    }
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
    // A line is left out where even a pixel that it covers whole would be too faint.
    const auto shows = [](double opacity) { return strengthOf(opacity) >= kLeastStrength; };
    const bool inShows = shows(alpha * 0.5);
    const bool outShows = shows(alpha * 0.14);
    constexpr double kMargin = 2; // a point reaches half a pixel beyond its place
    const VisibleAngles angles(r - outer, std::max(m_centerX, m_width - m_centerX) + kMargin,
                               std::max(m_centerY, m_height - m_centerY) + kMargin);
    if (!shows(alpha) || angles.areNone()) return;
    double angle = 0;
    for (int i = 0; i < steps; ++i, angle += step) {
        if (!angles.contain(angle)) continue;
        const double dx = std::cos(angle);
        const double dy = std::sin(angle);
        const auto at = [&](double distance, double opacity) {
            plot(m_centerX + dx * distance, m_centerY + dy * distance, color, opacity);
        };
        at(r, alpha);
        if (inShows) {
            at(r - inner, alpha * 0.5);
            at(r + inner, alpha * 0.5);
        }
        if (outShows) {
            at(r - outer, alpha * 0.14);
            at(r + outer, alpha * 0.14);
        }
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
    const std::uint8_t* strengths = glowOf(r, centerAlpha, box).data();
    for (int row = box.top; row <= box.bottom; ++row, strengths += count)
        ceremonyblend::loops().blendEach(m_pixels.data() + offset(box.left, row), strengths, count,
                                         color);
}

const std::vector<std::uint8_t>& CeremonyCanvas::glowOf(double radius, double centerAlpha,
                                                        const Box& box) {
    const auto known = std::ranges::find_if(m_glows, [&](const Glow& glow) {
        return glow.radius == radius && glow.centerAlpha == centerAlpha;
    });
    if (known != m_glows.end()) return known->strengths;
    // The other one stays: two glows at a time are the most that a frame has.
    Glow& glow = m_glows[m_oldestGlow];
    m_oldestGlow = 1 - m_oldestGlow;
    glow.radius = radius;
    glow.centerAlpha = centerAlpha;
    const auto count = static_cast<std::size_t>(box.right - box.left) + 1;
    std::uint8_t* strength = glow.strengths.data();
    for (int row = box.top; row <= box.bottom; ++row, strength += count) {
        const float* distance = m_distances.data() + offset(box.left, row);
        for (std::size_t i = 0; i < count; ++i) {
            const double alpha = centerAlpha * std::max(1 - distance[i] / radius, 0.0);
            strength[i] = static_cast<std::uint8_t>(painted(strengthOf(alpha)));
        }
    }
    return glow.strengths;
}

} // namespace vantle
