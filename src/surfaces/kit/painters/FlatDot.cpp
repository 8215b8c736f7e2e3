#include "surfaces/kit/painters/FlatDot.h"

#include <QPainter>

namespace vantle {

void FlatDot::setColor(const QColor& color) {
    if (show(m_color, color)) Q_EMIT changed();
}

void FlatDot::paint(QPainter& painter, double /*scale*/) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_color);
    painter.drawEllipse(boundingRect());
}

} // namespace vantle
