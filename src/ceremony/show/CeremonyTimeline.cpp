#include "ceremony/show/CeremonyTimeline.h"

#include "ceremony/show/CeremonyEase.h"
#include "ceremony/show/CeremonyGridModel.h"

#include <algorithm>
#include <cmath>

namespace vantle::ceremonytimeline {

namespace {

constexpr double kPlate = 0.52;
constexpr double kPlateOut = 1.95;

constexpr double kTitleIn = 1.7;
constexpr double kTitleOut = 2.75;
constexpr double kFade = 0.3;

double titleEase(double t) { return ceremonyEaseOutCubic((t - kTitleIn) / kFade); }

} // namespace

bool hasEnded(double t) { return t >= CeremonyGridModel::endTime; }

double plateAlpha(CeremonyVariant variant, double t) {
    const bool charged = variant == CeremonyVariant::Nova;
    const double in = charged ? 0.5 : 0.3;
    if (t < in) return ceremonyEaseInQuad(charged ? 2 * t : t / 0.3) * kPlate;
    if (t < kPlateOut) return kPlate;
    return kPlate * std::max(1 - (t - kPlateOut) / 0.6, 0.0);
}

int plateByte(CeremonyVariant variant, double t) {
    return std::clamp(static_cast<int>(plateAlpha(variant, t) * 255), 0, 255);
}

double titleOpacity(double t) {
    if (t < kTitleIn || hasEnded(t)) return 0;
    if (t < titleStands) return titleEase(t);
    if (t < kTitleOut) return 0.03 * std::sin(5 * t) + 0.97;
    return std::max(1 - (t - kTitleOut) / kFade, 0.0);
}

double titleRise(double t) {
    if (t < titleStands) return -4 * (1 - titleEase(t));
    if (t < kTitleOut) return 0;
    return 46 * std::min((t - kTitleOut) / kFade, 1.0);
}

double titleGlow(double t) {
    if (t < kTitleIn) return 0;
    if (t < 2.05) return (t - kTitleIn) / 0.35;
    if (t < kTitleOut) return 1;
    return std::max(1 - (t - kTitleOut) / kFade, 0.0);
}

double captionOpacity(double t) {
    constexpr double kIn = 0.3;
    constexpr double kOut = 1.6;
    if (t <= kIn || t >= kOut) return 0;
    double ramp = 1;
    if (t < 0.55)
        ramp = 4 * (t - kIn);
    else if (t > 1.35)
        ramp = 4 * (kOut - t);
    return 0.4 * ramp;
}

} // namespace vantle::ceremonytimeline
