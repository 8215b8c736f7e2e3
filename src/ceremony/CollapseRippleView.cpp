#include "ceremony/CollapseRippleView.h"

#include <QColor>
#include <QPainter>

#include <cmath>

namespace vantle {

namespace {

QRect boundsOf(QPointF centre, double radius) {
    return QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius).toAlignedRect();
}

} // namespace

std::optional<CollapseRippleView::Ring> CollapseRippleView::ringAt(QSizeF size, Seconds t) {
    const double p = t / duration;
    if (p < 0 || p >= 1) return std::nullopt;
    const double reach = std::hypot(size.width() / 2, size.height() / 2) * 1.05;
    return Ring{(1 - p * p) * reach, 2.5, (0.7 * p + 0.3) * 0.5};
}

void CollapseRippleView::paint(QImage& picture, Seconds t) {
    picture.fill(Qt::transparent);
    const QSizeF size = picture.deviceIndependentSize();
    const auto ring = ringAt(size, t);
    if (!ring || !ring->isDrawn()) return;
    QPainter painter(&picture);
    QColor color = QColor::fromRgb(m_accent);
    color.setAlphaF(static_cast<float>(ring->opacity));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, ring->lineWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(QPointF(), size).center(), ring->radius, ring->radius);
}

QRegion CollapseRippleView::solidPart(QSize size, Seconds t) const {
    const auto ring = ringAt(size, t);
    if (!ring || !ring->isDrawn()) return {};
    const QPointF centre = QRectF(QPointF(), size).center();
    const double half = ring->lineWidth / 2;
    const QRegion disc(boundsOf(centre, ring->radius + half), QRegion::Ellipse);
    const QRegion hole(boundsOf(centre, std::max(ring->radius - half, 0.0)), QRegion::Ellipse);
    return disc.subtracted(hole).intersected(QRect(QPoint(), size));
}

} // namespace vantle
