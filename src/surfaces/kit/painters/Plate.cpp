#include "surfaces/kit/painters/Plate.h"

#include "surfaces/kit/painters/PatchesNode.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>

namespace vantle {

namespace {

/// The area between two rounded rectangles.
QPainterPath rimOf(const QRectF& rect, double radius, int width) {
    QPainterPath path; // odd-even fill
    path.addRoundedRect(rect, radius, radius);
    const double inner = std::max(0.0, radius - width);
    path.addRoundedRect(rect.adjusted(width, width, -width, -width), inner, inner);
    return path;
}

} // namespace

QSGNode* Plate::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
    const double scale = window()->effectiveDevicePixelRatio();
    const QSize pixels(qRound(width() * scale), qRound(height() * scale));
    const bool hasEdge = m_edge.alpha() > 0 && m_edgeWidth > 0;
    if (pixels.isEmpty() || (m_color.alpha() == 0 && !hasEdge)) {
        delete old;
        return nullptr;
    }
    const int edge = hasEdge ? std::max(1, qRound(m_edgeWidth * scale)) : 0;
    const double radius =
        std::min(m_radius * scale, std::min(pixels.width(), pixels.height()) / 2.0);
    // The smallest plate that stretches to this one: one pixel between its corners.
    const int corner = std::max(static_cast<int>(std::ceil(radius)), edge);
    const QSize smallest = pixels.boundedTo(QSize(2 * corner + 1, 2 * corner + 1));
    QImage image(smallest, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF all(QPointF(0, 0), QSizeF(smallest));
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_color);
        painter.drawRoundedRect(all, radius, radius);
        if (hasEdge) painter.fillPath(rimOf(all, radius, edge), m_edge);
    }
    auto* node = static_cast<PatchesNode*>(old);
    if (!node) node = new PatchesNode(*window());
    node->setImage(image);
    node->layOut({}, pixels, QMargins(corner, corner, corner, corner), scale);
    return node;
}

} // namespace vantle
