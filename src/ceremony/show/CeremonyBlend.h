// The blend function of the ceremony's frames, for single pixels and spans.
//
// A source channel with strength a (0 to 255) is blended into the picture as
//     ((256 - a) * picture >> 8) + ((a + 1) * source >> 8), which never exceeds 255. The picture's
//     alpha follows the same formula with a source of 255. Strength 0 changes nothing, so loops
//     need no branch for empty pixels. Pixels have 32 bits, one byte per channel, alpha in the
//     highest. Any thread.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

namespace vantle::ceremonyblend {

static_assert(std::endian::native == std::endian::little, "the bytes of a pixel are counted so");

/// Weaker strengths are not painted.
inline constexpr int kLeastStrength = 2;

/// Converts an opacity of 0 to 1 to a strength.
[[nodiscard]] inline int strengthOf(double alpha) {
    const int strength = static_cast<int>(alpha * 255);
    return strength > 254 ? 255 : strength;
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

/// The loops over many pixels. Every set gives the same bytes.
struct Loops {
    /// Blends `count` pixels at one strength.
    void (*blendEvenly)(std::uint32_t* pixels, std::size_t count, std::uint32_t color,
                        unsigned strength);
    /// Blends `count` pixels with their own strengths.
    void (*blendEach)(std::uint32_t* pixels, const std::uint8_t* strengths, std::size_t count,
                      std::uint32_t color);
    /// Blends rows of eight pixels, `stride` pixels apart. A pixel's strength is `strength` times
    /// its weight (0 to 256) / 256, or 0 below kLeastStrength. `weights` has kRowWeights for each
    /// row, in the order of weightIndex().
    void (*stampRows)(std::uint32_t* corner, std::size_t stride, const std::uint16_t* weights,
                      int rows, std::uint32_t color, unsigned strength);
};

inline constexpr int kRowPixels = 8;
inline constexpr std::size_t kRowWeights = std::size_t{kRowPixels} * 4; ///< one for each channel

/// Returns where the weight of a row's channel stands: pairs of pixels in the order 0, 2, 1, 3, in
/// which a vector register unpacks eight pixels.
[[nodiscard]] constexpr std::size_t weightIndex(std::size_t channel) {
    const std::size_t pair = channel / 8;
    const std::size_t place = pair == 1 ? 2 : pair == 2 ? 1 : pair;
    return place * 8 + channel % 8;
}

/// The fastest set that this processor has.
[[nodiscard]] const Loops& loops();
/// The set for any processor.
[[nodiscard]] const Loops& plainLoops();

} // namespace vantle::ceremonyblend
