#include "surfaces/kit/painters/FadeLayer.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace vantle {

void FadeLayer::paint(QPainter& painter, double /*scale*/) {
    const QRectF area = boundingRect();
    // The opposite corners are outside of the painted area, so that only two are round.
    QRectF shape = area;
    QLinearGradient light;
    switch (m_edge) {
    case Qt::TopEdge:
        shape.setBottom(area.bottom() + m_radius);
        light.setStart(area.topLeft());
        light.setFinalStop(area.bottomLeft());
        break;
    case Qt::LeftEdge:
        shape.setRight(area.right() + m_radius);
        light.setStart(area.topLeft());
        light.setFinalStop(area.topRight());
        break;
    case Qt::RightEdge:
        shape.setLeft(area.left() - m_radius);
        light.setStart(area.topRight());
        light.setFinalStop(area.topLeft());
        break;
    default:
        shape.setTop(area.top() - m_radius);
        light.setStart(area.bottomLeft());
        light.setFinalStop(area.topLeft());
        break;
    }
    QColor clear = m_ground;
    clear.setAlphaF(0);
    light.setColorAt(0, m_ground);
    light.setColorAt(1, clear);
    QPainterPath path;
    path.addRoundedRect(shape, m_radius, m_radius);
    painter.fillPath(path, light);
}

} // namespace vantle
