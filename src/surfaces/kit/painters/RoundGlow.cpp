#include "surfaces/kit/painters/RoundGlow.h"

#include <QPainter>
#include <QRadialGradient>

#include <cmath>

namespace vantle {

namespace {

constexpr int kSteps = 8;

/// Returns the light left at that part of a blurred disc's reach beyond the rim: 0.5 at the rim, 0
/// at the end.
double lightAt(double part) {
    const double rest = 1 - part;
    return 0.5 * rest * rest;
}

} // namespace

void RoundGlow::paint(QPainter& painter, double /*scale*/) {
    const QPointF centre(width() / 2, height() / 2);
    const double rim = width() / 2;
    const double outer = rim + m_reach;
    if (outer <= 0) return;
    QRadialGradient light(centre, outer);
    QColor color = m_color;
    color.setAlphaF(0);
    light.setColorAt(0, color);
    light.setColorAt(std::nextafter(rim / outer, 0.0), color);
    for (int step = 0; step <= kSteps; ++step) {
        const double part = static_cast<double>(step) / kSteps;
        color.setAlphaF(static_cast<float>(m_color.alphaF() * lightAt(part)));
        light.setColorAt((rim + part * m_reach) / outer, color);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawEllipse(centre, outer, outer);
}

} // namespace vantle
