// The one operation by which anything gets into a frame, for a pixel and for many at once.
//
// A channel of the source at a strength a of 0 to 255 goes into that of the picture as
//     ((256 - a) * picture >> 8) + ((a + 1) * source >> 8),
// which is never more than 255. The alpha of the picture follows the same formula, since it gives
// a + ((256 - a) * picture >> 8) for a source of 255. A strength of 0 changes nothing, so loops
// need no branch for what isn't painted.
//
// Pixels are 32 bits with a channel a byte, and alpha in the highest.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace vantle::ceremonyblend {

static_assert(std::endian::native == std::endian::little, "the bytes of a pixel are counted so");

/// What is too weak to be painted.
inline constexpr int kLeastStrength = 2;

/// An opacity of 0 to 1 as a strength.
[[nodiscard]] inline int strengthOf(double alpha) {
    const int strength = static_cast<int>(alpha * 255);
    return strength > 254 ? 255 : strength;
}

/// Products of 16 bits, so that eight of them go into a vector register.
[[nodiscard]] inline std::uint8_t blended(std::uint8_t picture, std::uint8_t source,
                                          std::uint16_t strength) {
    const auto kept = static_cast<std::uint16_t>((256 - strength) * picture);
    const auto added = static_cast<std::uint16_t>((strength + 1) * source);
    return static_cast<std::uint8_t>((kept >> 8) + (added >> 8));
}

/// Blends one pixel, two channels at a time.
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

/// The bytes of a colour for as many pixels as a vector register holds.
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

/// Blends `count` pixels, each at its own strength. A strength stands there four times, once for
/// each channel.
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
