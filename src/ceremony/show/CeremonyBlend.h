// The blend function of the ceremony's frames, for single pixels and spans.
//
// A source channel with strength a (0 to 255) is blended into the picture as
//     ((256 - a) * picture >> 8) + ((a + 1) * source >> 8), which never exceeds 255. The picture's
//     alpha follows the same formula with a source of 255. Strength 0 changes nothing, so loops
//     need no branch for empty pixels. Pixels have 32 bits, one byte per channel, alpha in the
//     highest. Any thread.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace vantle::ceremonyblend {

static_assert(std::endian::native == std::endian::little, "the bytes of a pixel are counted so");

/// Weaker strengths are not painted.
inline constexpr int kLeastStrength = 2;

/// Converts an opacity of 0 to 1 to a strength.
[[nodiscard]] inline int strengthOf(double alpha) {
    const int strength = static_cast<int>(alpha * 255);
    return strength > 254 ? 255 : strength;
}

/// 16-bit products, so that eight fit into a vector register.
[[nodiscard]] inline std::uint8_t blended(std::uint8_t picture, std::uint8_t source,
                                          std::uint16_t strength) {
    const auto kept = static_cast<std::uint16_t>((256 - strength) * picture);
    const auto added = static_cast<std::uint16_t>((strength + 1) * source);
    return static_cast<std::uint8_t>((kept >> 8) + (added >> 8));
}

/// Blends one pixel, two channels per multiplication.
inline void blend(std::uint32_t& pixel, std::uint32_t color, unsigned strength) {
    constexpr std::uint32_t kPair = 0x00FF00FF;
    const std::uint32_t keep = 256 - strength;
    const std::uint32_t add = strength + 1;
    const std::uint32_t even =
        ((keep * (pixel & kPair)) >> 8 & kPair) + ((add * (color & kPair)) >> 8 & kPair);
    const std::uint32_t odd =
        ((keep * (pixel >> 8 & kPair)) >> 8 & kPair) + ((add * (color >> 8 & kPair)) >> 8 & kPair);
    pixel = even | odd << 8;
}

/// A colour repeated to fill a vector register.
using Pattern = std::array<std::uint8_t, 16>;
inline constexpr std::size_t kPatternPixels = 4;

[[nodiscard]] inline Pattern patternOf(std::uint32_t color) {
    Pattern pattern{};
    for (std::size_t i = 0; i < pattern.size(); ++i)
        pattern[i] = static_cast<std::uint8_t>(color >> (8 * (i % 4)));
    return pattern;
}

/// Blends `count` pixels at one strength.
inline void blendSpan(std::uint32_t* pixels, std::size_t count, std::uint32_t color,
                      unsigned strength) {
    const Pattern pattern = patternOf(color);
    const auto even = static_cast<std::uint16_t>(strength);
    std::size_t done = 0;
    for (; done + kPatternPixels <= count; done += kPatternPixels) {
        auto* bytes = reinterpret_cast<std::uint8_t*>(pixels + done);
        for (std::size_t i = 0; i < pattern.size(); ++i)
            bytes[i] = blended(bytes[i], pattern[i], even);
    }
    for (; done < count; ++done)
        blend(pixels[done], color, strength);
}

/// Blends `count` pixels with their own strengths. Each strength is repeated four times, once per
/// channel.
inline void blendSpan(std::uint32_t* __restrict pixels, const std::uint32_t* __restrict strengths,
                      std::size_t count, std::uint32_t color) {
    const Pattern pattern = patternOf(color);
    std::size_t done = 0;
    for (; done + kPatternPixels <= count; done += kPatternPixels) {
        auto* bytes = reinterpret_cast<std::uint8_t*>(pixels + done);
        const auto* strength = reinterpret_cast<const std::uint8_t*>(strengths + done);
        for (std::size_t i = 0; i < pattern.size(); ++i)
            bytes[i] = blended(bytes[i], pattern[i], strength[i]);
    }
    for (; done < count; ++done)
        blend(pixels[done], color, strengths[done] & 0xFF);
}

} // namespace vantle::ceremonyblend
