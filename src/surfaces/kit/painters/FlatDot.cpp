#include "surfaces/kit/painters/FlatDot.h"

#include <QPainter>

namespace vantle {

void FlatDot::paint(QPainter& painter, double /*scale*/) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_color);
    painter.drawEllipse(boundingRect());
}

} // namespace vantle
