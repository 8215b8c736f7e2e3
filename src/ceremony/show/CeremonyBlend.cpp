#include "ceremony/show/CeremonyBlend.h"

#include <array>

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace vantle::ceremonyblend {

namespace {

/// 16-bit products, so that a vector register holds many.
[[gnu::always_inline]] inline std::uint8_t blended(std::uint8_t picture, std::uint8_t source,
                                                   std::uint16_t strength) {
    const auto kept = static_cast<std::uint16_t>((256 - strength) * picture);
    const auto added = static_cast<std::uint16_t>((strength + 1) * source);
    return static_cast<std::uint8_t>((kept >> 8) + (added >> 8));
}

/// Masks weak strengths by bits, since a branch takes twice as long in vector code.
[[gnu::always_inline]] inline std::uint16_t weighted(std::uint16_t weight, std::uint16_t strength) {
    const auto scaled =
        static_cast<std::uint16_t>(static_cast<std::uint16_t>(strength * weight) >> 8);
    const bool seen = static_cast<std::int16_t>(scaled) >= kLeastStrength;
    return static_cast<std::uint16_t>(scaled & -std::uint16_t{seen});
}

/// A colour repeated for a few pixels.
template <std::size_t size>
std::array<std::uint8_t, size> repeated(std::uint32_t color) {
    std::array<std::uint8_t, size> bytes{};
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<std::uint8_t>(color >> (8 * (i % 4)));
    return bytes;
}

constexpr std::size_t kGroup = 4; ///< pixels of the smallest vector register

void blendEvenlyPlain(std::uint32_t* pixels, std::size_t count, std::uint32_t color,
                      unsigned strength) {
    const auto source = repeated<4 * kGroup>(color);
    const auto even = static_cast<std::uint16_t>(strength);
    std::size_t done = 0;
    for (; done + kGroup <= count; done += kGroup) {
        auto* bytes = reinterpret_cast<std::uint8_t*>(pixels + done);
        for (std::size_t i = 0; i < source.size(); ++i)
            bytes[i] = blended(bytes[i], source[i], even);
    }
    for (; done < count; ++done)
        blend(pixels[done], color, strength);
}

void blendEachPlain(std::uint32_t* pixels, const std::uint8_t* strengths, std::size_t count,
                    std::uint32_t color) {
    for (std::size_t i = 0; i < count; ++i)
        blend(pixels[i], color, strengths[i]);
}

void stampRowsPlain(std::uint32_t* corner, std::size_t stride, const std::uint16_t* weights,
                    int rows, std::uint32_t color, unsigned strength) {
    const auto source = repeated<8>(color);
    const auto given = static_cast<std::uint16_t>(strength);
    for (int row = 0; row < rows; ++row, corner += stride, weights += kRowWeights) {
        auto* bytes = reinterpret_cast<std::uint8_t*>(corner);
        for (std::size_t pair = 0; pair < kRowWeights; pair += 8) {
            const std::uint16_t* weight = weights + weightIndex(pair);
            for (std::size_t i = 0; i < 8; ++i)
                bytes[pair + i] = blended(bytes[pair + i], source[i], weighted(weight[i], given));
        }
    }
}

#ifdef __x86_64__

/// Loads and stores eight pixels.
[[gnu::target("avx2")]] inline __m256i eightAt(const void* place) {
    return _mm256_loadu_si256(static_cast<const __m256i*>(place));
}

/// Returns the colour's channels in the upper bytes of 16 bits: the upper half of a product with
/// them is then the 256th part.
[[gnu::target("avx2")]] inline __m256i raised(std::uint32_t color) {
    return _mm256_unpacklo_epi8(_mm256_setzero_si256(), _mm256_set1_epi32(static_cast<int>(color)));
}

/// Blends sixteen channels, raised as the source is.
[[gnu::target("avx2")]] inline __m256i blendedHalf(__m256i picture, __m256i source,
                                                   __m256i strengths) {
    const __m256i keep = _mm256_sub_epi16(_mm256_set1_epi16(256), strengths);
    const __m256i add = _mm256_add_epi16(strengths, _mm256_set1_epi16(1));
    return _mm256_add_epi16(_mm256_mulhi_epu16(picture, keep), _mm256_mulhi_epu16(source, add));
}

/// Blends eight pixels. The strengths are those of pixels 0, 1, 4, 5 and of 2, 3, 6, 7.
[[gnu::target("avx2")]] inline void blendEight(std::uint32_t* pixels, __m256i source, __m256i outer,
                                               __m256i inner) {
    const __m256i picture = eightAt(pixels);
    const __m256i zero = _mm256_setzero_si256();
    const __m256i low = blendedHalf(_mm256_unpacklo_epi8(zero, picture), source, outer);
    const __m256i high = blendedHalf(_mm256_unpackhi_epi8(zero, picture), source, inner);
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(pixels), _mm256_packus_epi16(low, high));
}

[[gnu::target("avx2")]] void blendEvenlyAvx2(std::uint32_t* pixels, std::size_t count,
                                             std::uint32_t color, unsigned strength) {
    const __m256i source = raised(color);
    const __m256i even = _mm256_set1_epi16(static_cast<short>(strength));
    std::size_t done = 0;
    for (; done + kRowPixels <= count; done += kRowPixels)
        blendEight(pixels + done, source, even, even);
    for (; done < count; ++done)
        blend(pixels[done], color, strength);
}

[[gnu::target("avx2")]] void blendEachAvx2(std::uint32_t* pixels, const std::uint8_t* strengths,
                                           std::size_t count, std::uint32_t color) {
    constexpr char kNone = -128; // a byte of 0
    const __m256i outer = _mm256_setr_epi8(0, kNone, 0, kNone, 0, kNone, 0, kNone, 1, kNone, 1,
                                           kNone, 1, kNone, 1, kNone, 4, kNone, 4, kNone, 4, kNone,
                                           4, kNone, 5, kNone, 5, kNone, 5, kNone, 5, kNone);
    const __m256i inner = _mm256_add_epi8(outer, _mm256_set1_epi16(2));
    const __m256i source = raised(color);
    std::size_t done = 0;
    for (; done + kRowPixels <= count; done += kRowPixels) {
        const __m256i eight = _mm256_broadcastq_epi64(
            _mm_loadl_epi64(reinterpret_cast<const __m128i*>(strengths + done)));
        blendEight(pixels + done, source, _mm256_shuffle_epi8(eight, outer),
                   _mm256_shuffle_epi8(eight, inner));
    }
    for (; done < count; ++done)
        blend(pixels[done], color, strengths[done]);
}

[[gnu::target("avx2")]] void stampRowsAvx2(std::uint32_t* corner, std::size_t stride,
                                           const std::uint16_t* weights, int rows,
                                           std::uint32_t color, unsigned strength) {
    const __m256i source = raised(color);
    const __m256i given = _mm256_set1_epi16(static_cast<short>(strength << 8));
    const __m256i unseen = _mm256_set1_epi16(kLeastStrength - 1);
    for (int row = 0; row < rows; ++row, corner += stride, weights += kRowWeights) {
        const __m256i outer = _mm256_mulhi_epu16(eightAt(weights), given);
        const __m256i inner = _mm256_mulhi_epu16(eightAt(weights + kRowWeights / 2), given);
        blendEight(corner, source, _mm256_and_si256(outer, _mm256_cmpgt_epi16(outer, unseen)),
                   _mm256_and_si256(inner, _mm256_cmpgt_epi16(inner, unseen)));
    }
}

constexpr Loops kAvx2 = {blendEvenlyAvx2, blendEachAvx2, stampRowsAvx2};

#endif

constexpr Loops kPlain = {blendEvenlyPlain, blendEachPlain, stampRowsPlain};

} // namespace

const Loops& plainLoops() { return kPlain; }

const Loops& loops() {
#ifdef __x86_64__
    static const bool hasAvx2 = __builtin_cpu_supports("avx2") != 0;
    if (hasAvx2) return kAvx2;
#endif
    return kPlain;
}

} // namespace vantle::ceremonyblend
