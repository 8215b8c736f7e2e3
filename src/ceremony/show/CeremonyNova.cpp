#include "ceremony/show/CeremonyNova.h"

#include "ceremony/show/CeremonyCanvas.h"
#include "ceremony/show/CeremonyEase.h"
#include "ceremony/show/CeremonyGridModel.h"
#include "ceremony/show/CeremonyPaletteRGB.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace vantle::ceremonynova {

namespace {

// Seconds after the detonation.
constexpr double kRings = 1.3;
constexpr double kRingDelay = 0.11;
constexpr double kSparks = 0.7;
constexpr double kGlow = 0.42;
constexpr double kFlash = 0.16;

void drawChargers(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t) {
    const double gathered = ceremonyEaseInQuad(2 * t);
    const double alpha = 0.75 * gathered + 0.25;
    struct Place {
        double gathered;
        double alpha;
    };
    const std::array<Place, 3> headAndTrail = {{
        {gathered, alpha},
        {ceremonyEaseInQuad(2 * (t - 0.045)), alpha * 0.3},
        {ceremonyEaseInQuad(2 * (t - 0.09)), alpha * 0.12},
    }};
    for (std::size_t i = 0; i < model.chargerX.size(); ++i) {
        const double fromX = double{model.chargerX[i]} / canvas.scale();
        const double fromY = double{model.chargerY[i]} / canvas.scale();
        const std::uint32_t color = canvas.packed(ceremonypalette::field[model.chargerColor[i]]);
        for (const Place& place : headAndTrail)
            canvas.plot(fromX + (canvas.centerX() - fromX) * place.gathered,
                        fromY + (canvas.centerY() - fromY) * place.gathered, color, place.alpha);
    }
}

void drawCore(CeremonyCanvas& canvas, double gathered) {
    constexpr double kHeart = 0.35; // share of the radius that is nearly white
    const double radius = (150 * gathered + 20) / canvas.scale();
    const std::uint32_t build = canvas.packed(ceremonypalette::build);
    const CeremonyCanvas::Box box = canvas.centeredBox(radius);
    for (int row = box.top; row <= box.bottom; ++row) {
        const auto distances = canvas.distances(row);
        for (int column = box.left; column <= box.right; ++column) {
            const double n = double{distances[static_cast<std::size_t>(column)]} / radius;
            if (n >= 1) continue;
            if (n < kHeart) {
                const double m = n / kHeart;
                const auto red = static_cast<std::uint32_t>(255 - 133 * m);
                const auto green = static_cast<std::uint32_t>(255 - 135 * m);
                canvas.blendAt(column, row, canvas.packed(red << 16 | green << 8 | 255U),
                               gathered * (0.5 - 0.05 * m));
            } else {
                canvas.blendAt(column, row, build,
                               0.45 * gathered * (1 - (n - kHeart) / (1 - kHeart)));
            }
        }
    }
}

void drawRings(CeremonyCanvas& canvas, const CeremonyGridModel& model, double since) {
    for (std::size_t k = 0; k < ceremonypalette::novaRings.size(); ++k) {
        const double u = (since - kRingDelay * static_cast<double>(k)) / kRings;
        if (!(u >= 0 && u <= 1)) continue;
        const double e = ceremonyEaseOutCubic(u);
        const bool first = k == 0;
        canvas.stampRing(e * largestRadius(model) + 8, (first ? 3.5 : 2.4) - 1.4 * e,
                         canvas.packed(ceremonypalette::novaRings[k]),
                         (first ? 0.65 : 0.42) * (1 - e));
    }
}

void drawSparks(CeremonyCanvas& canvas, const CeremonyGridModel& model, double since) {
    constexpr double kInnermost = 10; // points from the centre
    const double f = (1 - since / kSparks) * 0.8;
    const std::uint32_t white = canvas.packed(ceremonypalette::white);
    for (std::size_t i = 0; i < model.sparkAngle.size(); ++i) {
        const double dx = std::cos(double{model.sparkAngle[i]});
        const double dy = std::sin(double{model.sparkAngle[i]});
        const auto at = [&](double distance, std::uint32_t color, double alpha) {
            canvas.plot(canvas.centerX() + dx * distance, canvas.centerY() + dy * distance, color,
                        alpha);
        };
        const double far = since * double{model.sparkSpeed[i]} + kInnermost;
        const double near = std::max(far - double{model.sparkLength[i]}, kInnermost);
        const double head = far / canvas.scale();
        const double tail = near / canvas.scale();
        const int steps = std::max(static_cast<int>(head - tail), 1);
        const std::uint32_t color =
            canvas.packed(ceremonypalette::sparks[i % ceremonypalette::sparks.size()]);
        for (int s = 0; s <= steps; ++s) {
            const double share = static_cast<double>(s) / steps;
            at(tail + (head - tail) * share, color, 0.18 * f + 0.82 * f * share);
        }
        at(head, white, 0.5 * f);
    }
}

} // namespace

double largestRadius(const CeremonyGridModel& model) {
    return std::hypot(model.width / 2, model.height / 2) * 1.05;
}

void drawCharge(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t) {
    const double gathered = ceremonyEaseInQuad(2 * t);
    drawChargers(canvas, model, t);
    drawCore(canvas, gathered);
    canvas.stampRing((1 - gathered) * 0.45 * largestRadius(model) + 12, 1.6,
                     canvas.packed(ceremonypalette::build), 0.35 * gathered);
}

void drawBurst(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t) {
    const double since = t - CeremonyGridModel::detonation;
    drawRings(canvas, model, since);
    if (since < kSparks) drawSparks(canvas, model, since);
    if (since < kGlow)
        canvas.drawCenteredGlow(230, canvas.packed(ceremonypalette::build),
                                0.45 * (1 - since / kGlow));
    if (since < kFlash)
        canvas.blendAll(canvas.packed(ceremonypalette::white),
                        static_cast<int>((1 - since / kFlash) * 0.22 * 255));
}

} // namespace vantle::ceremonynova
