#include "review/WrappedMotion.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantle::wrappedmotion {

namespace {

double fraction(double value) { return value - std::floor(value); }

/// Ease-out: fast at first, slow at the end.
double easedOut(double t) { return 1 - std::pow(1 - t, 3); }

} // namespace

double cascadeDelay(int order) { return 0.05 + order * 0.075; }
double popDelay(int order, double baseDelay) { return baseDelay + order * 0.07; }
double growDelay(int order, double baseDelay) { return baseDelay + order * 0.06; }

double countUp(double hours, double seconds) {
    if (hours <= 0 || seconds >= countUpSeconds) return hours;
    return hours * easedOut(std::max(seconds, 0.0) / countUpSeconds);
}

BurstDot burstDot(int index, double t) {
    const double i = index;
    const double distance = std::abs(std::sin(i * 78.233)) * 68 + 54;
    const double angle = 2 * std::numbers::pi * i / burstDots + std::sin(i * 12.9898) * 0.5 * 0.35;
    const double out = distance * easedOut(t);
    const double fadeIn = std::clamp(t / 0.15, 0.0, 1.0);
    const double fadeOut = std::clamp((1 - t) / 0.3, 0.0, 1.0);
    return {std::cos(angle) * out, std::sin(angle) * out + t * t * 12,
            std::abs(std::sin(i * 3.7)) * 1.8 + 1.8, fadeIn * fadeOut};
}

AmbientDot ambientDot(int index) {
    const double i = index;
    AmbientDot dot;
    dot.baseX = fraction(i * 0.754877666);
    dot.baseY = fraction(i * 0.569840296);
    dot.ampX = fraction(i * 0.318309);
    dot.ampY = fraction(i * 0.912931);
    dot.speed = fraction(i * 0.437) * 0.12 + 0.08;
    dot.phase = i * 0.61;
    dot.radius = fraction(i * 0.271) * 0.5 + 1.0;
    const int place = index % 10;
    if (place == 7 || place == 8) dot.group = AmbientDot::Group::Accent;
    if (place == 9) dot.group = AmbientDot::Group::Rose;
    return dot;
}

AmbientPlace place(const AmbientDot& dot, double width, double height, double t) {
    return {width * dot.baseX + dot.ampX * std::sin(dot.phase + 2 * t * dot.speed),
            height * dot.baseY + dot.ampY * std::cos(t * dot.speed * 1.6 + dot.phase * 1.3),
            std::sin(t * 0.8 + dot.phase * 2.1) * 0.5 + 0.5};
}

std::optional<double> shootingStar(double t) {
    constexpr double kEvery = 8;
    constexpr double kShareWithout = 0.42;
    const double slot = std::floor(t / kEvery);
    const double since = t - slot * kEvery;
    if (since >= shootingStarSeconds || fraction(slot * 0.318309) < kShareWithout)
        return std::nullopt;
    return since;
}

} // namespace vantle::wrappedmotion
