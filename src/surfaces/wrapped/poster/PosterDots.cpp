#include "surfaces/wrapped/poster/PosterDots.h"

#include "surfaces/kit/painters/GlassDotImages.h"

#include <QPainter>

namespace vantle::posterdots {

namespace {

// The edge cuts the first dot of a row, so that the field seems to continue.
constexpr double kFromRight = 2;
constexpr double kFromTop = 11.5;
constexpr double kReachDown = 118; // from the first row to the last visible one, px
constexpr double kReachLeft = 312;
constexpr double kBrightest = 0.92;
constexpr double kFaintest = 0.03; // fainter dots look like smudges

/// `light` falls linearly from 1 to 0; the opacity falls more slowly at the bright end.
double opacityOf(double light) { return kBrightest * light * (1.35 - 0.35 * light); }

} // namespace

std::vector<Dot> field(const QRectF& area) {
    std::vector<Dot> dots;
    const QPointF first(area.right() - kFromRight, area.top() + kFromTop);
    for (int row = 0; row * kPitch < area.height(); ++row)
        for (int column = 0; column * kPitch < area.width(); ++column) {
            const double light = 1 - column * kPitch / kReachLeft - row * kPitch / kReachDown;
            if (light <= 0 || opacityOf(light) < kFaintest) break;
            dots.push_back({first + QPointF(-column * kPitch, row * kPitch), opacityOf(light)});
        }
    return dots;
}

void draw(QPainter& painter, const QRectF& area, const QList<QColor>& colors, double scale) {
    if (colors.isEmpty()) return;
    GlassDotImages images;
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    qsizetype next = 0;
    for (const Dot& dot : field(area)) {
        painter.setOpacity(dot.opacity);
        images.draw(painter, dot.center, colors[next % colors.size()], kRadius, scale);
        ++next;
    }
    painter.restore();
}

} // namespace vantle::posterdots
