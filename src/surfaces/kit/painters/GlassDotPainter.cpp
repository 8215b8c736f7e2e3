#include "surfaces/kit/painters/GlassDotPainter.h"

#include "surfaces/kit/tokens/ColorMath.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>

namespace vantle::glassdotpainter {
namespace {

using colormath::glassLightened;
using colormath::withAlpha;

// Inner shading is invisible on smaller dots and would only dull the colour.
constexpr double kShadedFrom = 5.0;
constexpr double kRimWidth = 0.6;
constexpr double kGlassRim = 0.28; // opacity

const QColor kWhite(Qt::white);

void fillDisc(QPainter& painter, QPointF center, double radius, const QBrush& brush) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawEllipse(center, radius, radius);
}

void drawRim(QPainter& painter, QPointF center, double radius, double alpha) {
    painter.setPen(QPen(withAlpha(kWhite, alpha), kRimWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(center, radius, radius);
}

void drawGlow(QPainter& painter, QPointF center, double radius, const QColor& color) {
    QRadialGradient glow(center, radius * kGlowReach);
    glow.setColorAt(0.86 / kGlowReach, withAlpha(color, 0.32));
    glow.setColorAt(1.0, withAlpha(color, 0.0));
    fillDisc(painter, center, radius * kGlowReach, glow);
}

void drawBody(QPainter& painter, QPointF center, double radius, const QColor& color) {
    QLinearGradient body(center - QPointF(0, radius), center + QPointF(0, radius));
    body.setColorAt(0.0, glassLightened(color, 0.35));
    body.setColorAt(1.0, color);
    fillDisc(painter, center, radius, body);
}

/// Darkens the edge and adds transmitted light from below.
void drawVolume(QPainter& painter, QPointF center, double radius, const QColor& color) {
    QRadialGradient volume(center - QPointF(0, 0.06 * radius), 1.08 * radius,
                           center - QPointF(0, 0.22 * radius), 0.62 * radius);
    volume.setColorAt(0.0, withAlpha(Qt::black, 0.0));
    volume.setColorAt(1.0, withAlpha(Qt::black, 0.30));
    fillDisc(painter, center, radius, volume);

    const QColor light = glassLightened(color, 0.5);
    QRadialGradient bounce(center + QPointF(0, 0.52 * radius), 0.66 * radius);
    bounce.setColorAt(0.0, withAlpha(light, 0.42));
    bounce.setColorAt(1.0, withAlpha(light, 0.0));
    fillDisc(painter, center, radius, bounce);
}

void drawHighlight(QPainter& painter, QPointF center, double radius) {
    const QSizeF size(1.25 * radius, 0.72 * radius);
    const QRectF area(center.x() - size.width() / 2, center.y() - 0.5 * radius - size.height() / 2,
                      size.width(), size.height());
    QLinearGradient highlight(area.topLeft(), area.bottomLeft());
    highlight.setColorAt(0.0, withAlpha(kWhite, 0.55));
    highlight.setColorAt(1.0, withAlpha(kWhite, 0.0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(highlight);
    painter.drawEllipse(area);
}

} // namespace

void drawFilled(QPainter& painter, QPointF center, double radius, const QColor& color) {
    drawGlow(painter, center, radius, color);
    drawBody(painter, center, radius, color);
    if (radius >= kShadedFrom) drawVolume(painter, center, radius, color);
    drawHighlight(painter, center, radius);
    drawRim(painter, center, radius, kGlassRim);
}

void drawEmpty(QPainter& painter, QPointF center, double radius) {
    fillDisc(painter, center, radius, withAlpha(kWhite, 0.05));
    fillDisc(painter, center, radius / 2, withAlpha(kWhite, 0.13));
    drawRim(painter, center, radius, 0.17);
}

void drawSlice(QPainter& painter, QPointF center, double radius, const QColor& color,
               double fraction) {
    fillDisc(painter, center, radius, withAlpha(color, 0.12));
    const double part = std::clamp(fraction, 0.0, 1.0);
    if (part > 0.0) {
        const QRectF area(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius);
        QPainterPath pie(center);
        pie.arcTo(area, 90.0, -360.0 * part);
        pie.closeSubpath();
        painter.fillPath(pie, withAlpha(color, 0.92));
    }
    drawRim(painter, center, radius, kGlassRim);
}

} // namespace vantle::glassdotpainter
