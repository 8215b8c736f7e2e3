#include "surfaces/kit/tokens/Spring.h"

#include <algorithm>
#include <cmath>

namespace vantle {
namespace {

// Closer to critical damping the underdamped formula divides by nearly zero.
constexpr double kCritical = 1e-6;

} // namespace

double Spring::progressAt(double seconds) const {
    if (seconds <= 0.0) return 0.0;
    const double omega = std::sqrt(stiffness);
    const double zeta = damping / (2.0 * omega);
    if (std::abs(zeta - 1.0) < kCritical)
        return 1.0 - std::exp(-omega * seconds) * (1.0 + omega * seconds);
    if (zeta < 1.0) {
        const double swing = omega * std::sqrt(1.0 - zeta * zeta);
        return 1.0 -
               std::exp(-zeta * omega * seconds) *
                   (std::cos(swing * seconds) + zeta * omega / swing * std::sin(swing * seconds));
    }
    // Overdamped: the sum of a slow and a fast decay.
    const double root = std::sqrt(zeta * zeta - 1.0);
    const double slow = omega * (zeta - root);
    const double fast = omega * (zeta + root);
    return 1.0 -
           (fast * std::exp(-slow * seconds) - slow * std::exp(-fast * seconds)) / (fast - slow);
}

double Spring::settlingTime(double tolerance) const {
    const double omega = std::sqrt(stiffness);
    const double zeta = damping / (2.0 * omega);
    if (std::abs(zeta - 1.0) < kCritical) {
        // e^-x (1 + x) is below the tolerance from here on, found by a few iterations.
        double x = -std::log(tolerance);
        for (int i = 0; i < 40; ++i)
            x = std::log((1.0 + x) / tolerance);
        return x / omega;
    }
    if (zeta < 1.0) return -std::log(tolerance * std::sqrt(1.0 - zeta * zeta)) / (zeta * omega);
    const double root = std::sqrt(zeta * zeta - 1.0);
    return std::log((zeta + root) / (2.0 * root * tolerance)) / (omega * (zeta - root));
}

} // namespace vantle
