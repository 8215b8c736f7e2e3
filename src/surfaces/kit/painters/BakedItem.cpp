#include "surfaces/kit/painters/BakedItem.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>

namespace vantle {

QSGNode* BakedItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
    const double scale = window()->effectiveDevicePixelRatio();
    const QRectF area = boundingRect().marginsAdded(bleed());
    const QSize pixels(static_cast<int>(std::ceil(area.width() * scale)),
                       static_cast<int>(std::ceil(area.height() * scale)));
    if (boundingRect().isEmpty() || pixels.isEmpty()) {
        delete old;
        return nullptr;
    }
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        painter.translate(-area.topLeft());
        paint(painter, scale);
    }
    auto* node = static_cast<QSGImageNode*>(old);
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
    }
    node->setTexture(window()->createTextureFromImage(image));
    // Whole device pixels, so that image and screen pixels coincide.
    node->setRect(QRectF(area.topLeft(), QSizeF(pixels) / scale));
    return node;
}

} // namespace vantle
