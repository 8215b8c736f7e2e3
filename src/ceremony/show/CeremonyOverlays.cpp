#include "ceremony/show/CeremonyOverlays.h"

#include "ceremony/show/CeremonyCanvas.h"
#include "ceremony/show/CeremonyGridModel.h"
#include "ceremony/show/CeremonyNova.h"
#include "ceremony/show/CeremonyPaletteRGB.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace vantle::ceremonyoverlays {

namespace {

namespace palette = ceremonypalette;

/// The strengths of a line over four pixels; the outer two are its halo.
std::array<double, 4> lineWeights(double fraction) { return {0.16, 1 - fraction, fraction, 0.16}; }

void drawRain(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t) {
    constexpr std::uint32_t kStreaks = 14;
    constexpr double kLength = 70; // points
    const std::uint32_t color = canvas.packed(palette::field[4]);
    for (std::uint32_t k = 0; k < kStreaks; ++k) {
        // A pseudo-random scatter, equal in every show.
        const std::uint32_t scattered = k * 0x9E3779B1U % 1000;
        const double x = model.width * scattered / 1000 / canvas.scale() - 0.5;
        const double turns = 0.13 * k + t * (0.55 + 0.12 * (k % 4));
        const double head = model.height * (turns - std::floor(turns));
        const double y1 = head / canvas.scale();
        const double y0 = (head - kLength) / canvas.scale();
        const double left = std::floor(x);
        const int column = static_cast<int>(left);
        const int last = std::min(static_cast<int>(y1), canvas.height() - 1);
        for (int row = std::max(static_cast<int>(y0), 0); row <= last; ++row) {
            const double ramp = std::min((row + 0.5 - y0) / (y1 - y0), 1.0);
            if (ramp <= 0) continue;
            canvas.blendAt(column, row, color, 0.4 * ramp * (1 - (x - left)));
            canvas.blendAt(column + 1, row, color, 0.4 * ramp * (x - left));
        }
    }
}

/// Returns how far the line of `Scan` has swept the screen; empty when it is not sweeping.
std::optional<double> sweep(double t) {
    if (t >= 0.15 && t <= 1.55) return (t - 0.15) / 1.4;
    if (t >= 1.85 && t <= 2.62) return (t - 1.85) / 0.77;
    return std::nullopt;
}

void drawScan(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t) {
    const std::optional<double> swept = sweep(t);
    if (!swept) return;
    const double x = *swept * model.width / canvas.scale();
    const double band = 30 / canvas.scale();
    const double from = x - band;
    const int last = std::min(static_cast<int>(x), canvas.width() - 1);
    const std::uint32_t build = canvas.packed(palette::build);
    for (int column = std::max(static_cast<int>(from), 0); column <= last; ++column) {
        const double ramp = (column + 0.5 - from) / band;
        if (ramp > 0) canvas.blendColumn(column, build, 0.28 * std::min(ramp, 1.0));
    }
    const double left = std::floor(x - 0.5);
    int column = static_cast<int>(left) - 1;
    for (const double weight : lineWeights(x - 0.5 - left))
        canvas.blendColumn(column++, canvas.packed(palette::white), weight * 0.75);
}

void drawSpiral(CeremonyCanvas& canvas, double t) {
    constexpr double kArc = 0.55; // radians that an arm spans
    constexpr std::array<std::size_t, 3> kColors = {0, 1, 4};
    for (std::size_t k = 0; k < kColors.size(); ++k) {
        const std::uint32_t color = canvas.packed(palette::field[kColors[k]]);
        const auto arm = static_cast<double>(k);
        const double radius = (130 * arm + 90) / canvas.scale();
        const int steps = std::max(static_cast<int>(kArc * radius), 8);
        const double start = 2.6 * t + 2.09 * arm - kArc;
        for (int s = 0; s <= steps; ++s) {
            const double share = static_cast<double>(s) / steps;
            const double alpha = (0.65 * share + 0.35) * 0.3;
            const double angle = start + kArc * share;
            const double dx = std::cos(angle);
            const double dy = std::sin(angle);
            const auto at = [&](double distance, double opacity) {
                canvas.plot(canvas.centerX() + dx * distance, canvas.centerY() + dy * distance,
                            color, opacity);
            };
            at(radius, alpha);
            at(radius - 0.9, alpha * 0.4);
            at(radius + 0.9, alpha * 0.4);
        }
    }
    canvas.drawCenteredGlow(120, canvas.packed(palette::build), 0.22);
}

void drawWall(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t) {
    const double y = (model.height - model.height * (t - 0.15) / 1.4) / canvas.scale();
    const double band = 26 / canvas.scale();
    const int last = std::min(static_cast<int>(y + band), canvas.height() - 1);
    const std::uint32_t glow = canvas.packed(palette::field[2]);
    for (int row = std::max(static_cast<int>(y), 0); row <= last; ++row) {
        const double f = std::clamp((row + 0.5 - y) / band, 0.0, 1.0);
        canvas.blendRow(row, glow, 0.32 * (1 - f));
    }
    const double top = std::floor(y - 0.5);
    int row = static_cast<int>(top) - 1;
    for (const double weight : lineWeights(y - 0.5 - top))
        canvas.blendRow(row++, canvas.packed(palette::mortar), weight * 0.8);
}

} // namespace

void draw(CeremonyCanvas& canvas, const CeremonyGridModel& model, double t) {
    switch (model.variant) {
    case CeremonyVariant::Nova:
        if (t >= CeremonyGridModel::detonation) ceremonynova::drawBurst(canvas, model, t);
        break;
    case CeremonyVariant::Rain:
        if (t < 1.7) drawRain(canvas, model, t);
        break;
    case CeremonyVariant::Scan:
        drawScan(canvas, model, t);
        break;
    case CeremonyVariant::Spiral:
        if (t < 2.4) drawSpiral(canvas, t);
        break;
    case CeremonyVariant::Wall:
        if (t >= 0.15 && t <= 1.55) drawWall(canvas, model, t);
        break;
    }
}

} // namespace vantle::ceremonyoverlays
