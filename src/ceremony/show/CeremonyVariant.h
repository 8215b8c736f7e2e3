// The five scripts of the ceremony.
//
// Plain values, any thread.
#pragma once

#include <QString>

#include <array>

namespace vantle {

enum class CeremonyVariant : int {
    Nova = 0,   ///< a charge gathers in the centre and bursts
    Rain = 1,   ///< falls in ragged columns
    Scan = 2,   ///< swept in from the left
    Spiral = 3, ///< wound up around the centre
    Wall = 4,   ///< built up from the bottom in courses
};

namespace ceremonyvariant {

/// All variants, by raw value.
inline constexpr std::array<CeremonyVariant, 5> all = {
    CeremonyVariant::Nova, CeremonyVariant::Rain, CeremonyVariant::Scan, CeremonyVariant::Spiral,
    CeremonyVariant::Wall};

/// Returns the caption, "SEQ 01 · SUPERNOVA".
[[nodiscard]] QString caption(CeremonyVariant variant);

/// "nova", "rain", "scan", "spiral", "wall".
[[nodiscard]] QLatin1String name(CeremonyVariant variant);

} // namespace ceremonyvariant

} // namespace vantle
