#include "surfaces/kit/painters/PopoverArrow.h"

#include <QPainter>

namespace vantle {

void PopoverArrow::paint(QPainter& painter, double /*scale*/) {
    constexpr double kEdge = 1; // px
    painter.translate(width() / 2, height() - kEdge);
    painter.rotate(45);
    const QRectF square(-m_side / 2, -m_side / 2, m_side, m_side);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_color);
    painter.drawRoundedRect(square, m_radius, m_radius);
    painter.setPen(QPen(m_edge, kEdge));
    painter.setBrush(Qt::NoBrush);
    constexpr double kHalf = kEdge / 2;
    painter.drawRoundedRect(square.adjusted(kHalf, kHalf, -kHalf, -kHalf), m_radius, m_radius);
}

} // namespace vantle
