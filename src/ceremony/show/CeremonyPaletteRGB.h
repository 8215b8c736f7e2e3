// The colours of the ceremony, as 0xRRGGBB.
//
// Constants, any thread.
#pragma once

#include <array>
#include <cstdint>

namespace vantle::ceremonypalette {

inline constexpr std::array<std::uint32_t, 5> field = {0x7A78FF, 0xFF375F, 0xFF9F0A, 0x30D158,
                                                       0x64D2FF};
inline constexpr std::array<std::uint32_t, 4> novaRings = {0xFF375F, 0xFF9F0A, 0x7A78FF, 0x64D2FF};
inline constexpr std::array<std::uint32_t, 5> sparks = {0xFF375F, 0xFF9F0A, 0x7A78FF, 0x30D158,
                                                        0x64D2FF};
inline constexpr std::uint32_t build = 0x7A78FF;
inline constexpr std::uint32_t plate = 0x06060A;
inline constexpr std::uint32_t mortar = 0xFFB440;
inline constexpr std::uint32_t white = 0xFFFFFF;

} // namespace vantle::ceremonypalette
