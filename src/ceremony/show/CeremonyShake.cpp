#include "ceremony/show/CeremonyShake.h"

#include "ceremony/show/CeremonyGridModel.h"

namespace vantle {

namespace {

constexpr double kDuration = 0.35; // seconds
constexpr double kWidest = 6;      // points

std::uint64_t shuffled(std::uint64_t x) {
    x ^= x << 13;
    x ^= x >> 7;
    x ^= x << 17;
    return x;
}

/// -1 to 1
double centered(std::uint64_t number) {
    return 2 * (static_cast<double>(number >> 11) * 0x1p-53) - 1;
}

} // namespace

CeremonyShake::Offset CeremonyShake::at(double t) {
    constexpr double kBegin = CeremonyGridModel::detonation;
    if (!(t >= kBegin && t < 0.85)) return {};
    const double amplitude = (1 - (t - kBegin) / kDuration) * kWidest;
    const std::uint64_t first = shuffled(m_state);
    m_state = shuffled(first);
    return {amplitude * centered(first), amplitude * centered(m_state)};
}

} // namespace vantle
