#include "ceremony/show/CeremonyShootingPoint.h"

#include "ceremony/show/CeremonyCanvas.h"
#include "ceremony/show/CeremonyEase.h"
#include "ceremony/show/CeremonyPaletteRGB.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vantle::ceremonyshootingpoint {

namespace {

constexpr double kStart = 2.8;
constexpr double kFlight = 0.26; // seconds
constexpr double kTail = 90;     // points

double progress(double t) { return std::clamp((t - kStart) / kFlight, 0.0, 1.0); }

/// From white at the head to the skill colour "building" at the tail.
std::uint32_t tailColor(double u) {
    const auto red = static_cast<std::uint32_t>(122 + 133 * u);
    const auto green = static_cast<std::uint32_t>(120 + 135 * u);
    return red << 16 | green << 8 | 255U;
}

void drawTail(CeremonyCanvas& canvas, double head, double tail, double brightness) {
    const double left = std::floor(canvas.centerX() - 0.5);
    const double fraction = canvas.centerX() - 0.5 - left;
    const int column = static_cast<int>(left);
    const int last = std::min(static_cast<int>(tail), canvas.height() - 1);
    for (int row = std::max(static_cast<int>(head), 0); row <= last; ++row) {
        const double u = std::clamp((tail - (row + 0.5)) / (tail - head), 0.0, 1.0);
        const double v = brightness * u;
        const std::uint32_t color = canvas.packed(tailColor(u));
        canvas.blendAt(column, row, color, (1 - fraction) * v);
        canvas.blendAt(column + 1, row, color, fraction * v);
        canvas.blendAt(column - 1, row, color, 0.22 * v);
        canvas.blendAt(column + 2, row, color, 0.22 * v);
    }
}

void drawEchoes(CeremonyCanvas& canvas, double centerY, double t) {
    struct Echo {
        double delay; ///< seconds
        double alpha;
    };
    constexpr std::array<Echo, 3> kEchoes = {{{0.024, 0.3}, {0.048, 0.165}, {0.072, 0.09075}}};
    const std::uint32_t white = canvas.packed(ceremonypalette::white);
    for (const Echo& echo : kEchoes) {
        const double then = t - echo.delay;
        if (then >= kStart)
            canvas.plot(canvas.centerX(), headHeight(centerY, then) / canvas.scale(), white,
                        echo.alpha);
    }
}

/// Draws the point, slightly elongated along its path.
void drawHead(CeremonyCanvas& canvas, double y) {
    const double x = canvas.centerX();
    const std::uint32_t white = canvas.packed(ceremonypalette::white);
    const std::uint32_t build = canvas.packed(ceremonypalette::build);
    canvas.plot(x, y, white, 0.9);
    canvas.plot(x, y - 0.7, white, 0.45);
    canvas.plot(x, y + 0.7, white, 0.45);
    canvas.plot(x - 0.9, y, white, 0.3);
    canvas.plot(x + 0.9, y, white, 0.3);
    canvas.plot(x, y - 1.6, build, 0.25);
    canvas.plot(x, y + 1.6, build, 0.25);
}

} // namespace

double headHeight(double centerY, double t) {
    return centerY + (restHeight - centerY) * ceremonyEaseOutCubic(progress(t));
}

void draw(CeremonyCanvas& canvas, double centerY, double t) {
    if (t < kStart) return;
    const double p = progress(t);
    const double head = headHeight(centerY, t);
    const double tail = std::min((1 - 0.5 * p) * kTail + head, centerY);
    if (!(head < tail)) return;
    drawTail(canvas, head / canvas.scale(), tail / canvas.scale(), 0.9 * (1 - 0.3 * p));
    drawEchoes(canvas, centerY, t);
    drawHead(canvas, head / canvas.scale());
}

} // namespace vantle::ceremonyshootingpoint
