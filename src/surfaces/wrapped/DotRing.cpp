#include "surfaces/wrapped/DotRing.h"

#include "surfaces/kit/painters/GlassDotPainter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantle {

QMarginsF DotRing::bleed() const {
    const double glow = std::ceil(m_dotRadius * (glassdotpainter::kGlowReach - 1)) + 1;
    return {glow, glow, glow, glow};
}

void DotRing::paint(QPainter& painter, double scale) {
    if (m_colors.isEmpty()) return;
    const QPointF center = boundingRect().center();
    const double radius = std::min(width(), height()) / 2 - m_dotRadius;
    for (int i = 0; i < m_count; ++i) {
        const double angle = 2 * std::numbers::pi * i / m_count;
        const QPointF place = center + QPointF(std::sin(angle), -std::cos(angle)) * radius;
        m_images.draw(painter, place, m_colors[i % m_colors.size()], m_dotRadius, scale);
    }
}

} // namespace vantle
