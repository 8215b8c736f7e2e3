#include "ceremony/show/FieldStretch.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace vantle {

namespace {

/// The sum of a column's two weights. The vector instructions take signed bytes, so a weight is at
/// most 127 and the other at least 1.
constexpr int kColumnWeights = 128;
/// The sum of two rows' weights, one of which may be 0.
constexpr int kRowWeights = 256;

/// A target pixel's position in the source: between `before` and the next pixel, 0 to 1.
struct Position {
    int before = 0;
    double part = 0;
};

Position positionOf(int pixel, double factor, double shift, int length) {
    const double at = std::clamp((pixel + 0.5 - shift) / factor - 0.5, 0.0, length - 1.0);
    const double before = std::floor(at);
    return {static_cast<int>(before), at - before};
}

/// The range of target pixels, of `count`, whose centres lie within the source.
struct Reach {
    int first = 0;
    int end = 0;
};

Reach reachOf(int length, int count, double factor, double shift) {
    const auto within = [count](double edge) {
        return static_cast<int>(std::clamp(std::ceil(edge - 0.5), 0.0, double{1} * count));
    };
    return {within(shift), within(shift + length * factor)};
}

std::uint32_t mixedPixel(std::uint32_t left, std::uint32_t right, std::uint16_t weights) {
    const unsigned leftWeight = weights & 0xFFU;
    const unsigned rightWeight = weights >> 8U;
    std::uint32_t mixed = 0;
    for (unsigned bit = 0; bit < 32; bit += 8) {
        const unsigned sum =
            (left >> bit & 0xFFU) * leftWeight + (right >> bit & 0xFFU) * rightWeight;
        mixed |= (sum + kColumnWeights / 2) / kColumnWeights << bit;
    }
    return mixed;
}

void widenPlain(const std::uint32_t* row, const std::uint32_t* left, const std::uint16_t* weights,
                int first, int end, std::uint32_t* wide) {
    for (int x = first; x < end; ++x)
        wide[x] = mixedPixel(row[left[x]], row[left[x] + 1], weights[x]);
}

/// Byte-wise, which the compiler vectorises.
[[gnu::always_inline]] inline void mixBytes(const std::uint8_t* __restrict upper,
                                            const std::uint8_t* __restrict lower,
                                            std::uint16_t lowerWeight, std::size_t count,
                                            std::uint8_t* __restrict mixed) {
    const auto upperWeight = static_cast<std::uint16_t>(kRowWeights - lowerWeight);
    for (std::size_t i = 0; i < count; ++i) {
        const auto sum = static_cast<std::uint16_t>(upper[i] * upperWeight +
                                                    lower[i] * lowerWeight + kRowWeights / 2);
        mixed[i] = static_cast<std::uint8_t>(sum >> 8);
    }
}

void mixPlain(const std::uint8_t* upper, const std::uint8_t* lower, std::uint16_t lowerWeight,
              std::size_t count, std::uint8_t* mixed) {
    mixBytes(upper, lower, lowerWeight, count, mixed);
}

#ifdef __x86_64__

[[gnu::target("avx2")]] void mixAvx2(const std::uint8_t* upper, const std::uint8_t* lower,
                                     std::uint16_t lowerWeight, std::size_t count,
                                     std::uint8_t* mixed) {
    mixBytes(upper, lower, lowerWeight, count, mixed);
}

/// Loads the two source pixels of one target pixel.
[[gnu::target("ssse3")]] inline __m128i pairAt(const std::uint32_t* row, std::uint32_t left) {
    return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(row + left));
}

/// Computes four target pixels at once.
[[gnu::target("ssse3")]] void widenSsse3(const std::uint32_t* row, const std::uint32_t* left,
                                         const std::uint16_t* weights, int first, int end,
                                         std::uint32_t* wide) {
    // Interleaves the channels of left and right pixel, in the order of the weights.
    const __m128i sideBySide = _mm_setr_epi8(0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15);
    const __m128i firstTwo = _mm_setr_epi8(0, 1, 0, 1, 0, 1, 0, 1, 2, 3, 2, 3, 2, 3, 2, 3);
    const __m128i lastTwo = _mm_setr_epi8(4, 5, 4, 5, 4, 5, 4, 5, 6, 7, 6, 7, 6, 7, 6, 7);
    const __m128i half = _mm_set1_epi16(kColumnWeights / 2);
    int x = first;
    for (; x + 4 <= end; x += 4) {
        const __m128i weight = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(weights + x));
        const __m128i early = _mm_unpacklo_epi64(pairAt(row, left[x]), pairAt(row, left[x + 1]));
        const __m128i late = _mm_unpacklo_epi64(pairAt(row, left[x + 2]), pairAt(row, left[x + 3]));
        const __m128i earlySums = _mm_maddubs_epi16(_mm_shuffle_epi8(early, sideBySide),
                                                    _mm_shuffle_epi8(weight, firstTwo));
        const __m128i lateSums = _mm_maddubs_epi16(_mm_shuffle_epi8(late, sideBySide),
                                                   _mm_shuffle_epi8(weight, lastTwo));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(wide + x),
                         _mm_packus_epi16(_mm_srli_epi16(_mm_add_epi16(earlySums, half), 7),
                                          _mm_srli_epi16(_mm_add_epi16(lateSums, half), 7)));
    }
    widenPlain(row, left, weights, x, end, wide);
}

bool has(FieldStretch::Instructions wanted, bool supported) {
    return wanted == FieldStretch::Instructions::Best && supported;
}

#endif

} // namespace

#ifdef __x86_64__
FieldStretch::FieldStretch(Instructions instructions)
    : m_hasSsse3(has(instructions, __builtin_cpu_supports("ssse3") != 0))
    , m_hasAvx2(has(instructions, __builtin_cpu_supports("avx2") != 0)) {}
#else
FieldStretch::FieldStretch(Instructions) : m_hasSsse3(false), m_hasAvx2(false) {}
#endif

void FieldStretch::layOut(int width, int count, double factor, double shift) {
    if (m_columns.width == width && m_columns.count == count && m_columns.factor == factor &&
        m_columns.shift == shift)
        return;
    const Reach reach = reachOf(width, count, factor, shift);
    m_columns.width = width;
    m_columns.count = count;
    m_columns.factor = factor;
    m_columns.shift = shift;
    m_columns.first = reach.first;
    m_columns.end = reach.end;
    m_columns.left.resize(static_cast<std::size_t>(count));
    m_columns.weights.resize(static_cast<std::size_t>(count));
    for (int x = reach.first; x < reach.end; ++x) {
        const Position position = positionOf(x, factor, shift, width);
        const int right = std::clamp(static_cast<int>(std::lround(position.part * kColumnWeights)),
                                     1, kColumnWeights - 1);
        const auto column = static_cast<std::size_t>(x);
        m_columns.left[column] = static_cast<std::uint32_t>(position.before);
        m_columns.weights[column] =
            static_cast<std::uint16_t>(right << 8 | (kColumnWeights - right));
    }
    m_row.resize(static_cast<std::size_t>(width) + 1);
    // Transparent where the source does not reach.
    m_upper.assign(static_cast<std::size_t>(count), 0);
    m_lower.assign(static_cast<std::size_t>(count), 0);
}

void FieldStretch::widen(std::span<const std::uint32_t> row, std::vector<std::uint32_t>& wide) {
    std::ranges::copy(row, m_row.begin());
    m_row.back() = row.back(); // the last column reads one pixel further
#ifdef __x86_64__
    const auto widened = m_hasSsse3 ? widenSsse3 : widenPlain;
#else
    const auto widened = widenPlain;
#endif
    widened(m_row.data(), m_columns.left.data(), m_columns.weights.data(), m_columns.first,
            m_columns.end, wide.data());
}

void FieldStretch::stretch(std::span<const std::uint32_t> source, QSize size, double factor,
                           QPointF shift, QImage& target) {
#ifdef __x86_64__
    const auto mix = m_hasAvx2 ? mixAvx2 : mixPlain;
#else
    const auto mix = mixPlain;
#endif
    layOut(size.width(), target.width(), factor, shift.x());
    const auto width = static_cast<std::size_t>(size.width());
    const std::size_t bytes = m_columns.left.size() * sizeof(std::uint32_t);
    const auto sourceRow = [&](int y) {
        return source.subspan(static_cast<std::size_t>(y) * width, width);
    };
    const Reach reach = reachOf(size.height(), target.height(), factor, shift.y());
    uchar* const pixels = target.bits();
    int upper = -1; // index of the source row in m_upper; m_lower holds the next
    for (int y = 0; y < target.height(); ++y) {
        uchar* const line = pixels + y * target.bytesPerLine();
        if (y < reach.first || y >= reach.end) {
            std::memset(line, 0, bytes);
            continue;
        }
        const Position position = positionOf(y, factor, shift.y(), size.height());
        if (position.before != upper) {
            if (upper >= 0 && position.before == upper + 1)
                m_upper.swap(m_lower);
            else
                widen(sourceRow(position.before), m_upper);
            upper = position.before;
            widen(sourceRow(std::min(upper + 1, size.height() - 1)), m_lower);
        }
        const auto lowerWeight =
            std::min(static_cast<int>(std::lround(position.part * kRowWeights)), kRowWeights - 1);
        if (lowerWeight == 0)
            std::memcpy(line, m_upper.data(), bytes);
        else
            mix(reinterpret_cast<const std::uint8_t*>(m_upper.data()),
                reinterpret_cast<const std::uint8_t*>(m_lower.data()),
                static_cast<std::uint16_t>(lowerWeight), bytes, line);
    }
}

} // namespace vantle
