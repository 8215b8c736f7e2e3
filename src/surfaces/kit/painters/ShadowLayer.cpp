#include "surfaces/kit/painters/ShadowLayer.h"

#include <QQuickWindow>
#include <QSGNinePatchNode>

namespace vantle {

ShadowLayer::ShadowLayer(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

void ShadowLayer::set(double& member, double value) {
    if (member == value) return;
    member = value;
    update();
    Q_EMIT changed();
}

QSGNode* ShadowLayer::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
    m_shape.size = size();
    if (m_shape.size.isEmpty() || m_shape.strength <= 0.0 || m_shape.blur <= 0.0) {
        delete old;
        m_bakedScale = 0.0;
        return nullptr;
    }
    auto* node = static_cast<QSGNinePatchNode*>(old);
    if (!node) {
        node = window()->createNinePatchNode();
        m_bakedScale = 0.0;
    }
    const double scale = window()->effectiveDevicePixelRatio();
    const ShadowShape smallest = m_shape.smallest();
    if (!(smallest == m_baked) || scale != m_bakedScale) {
        node->setTexture(window()->createTextureFromImage(shadowImage(smallest, scale)));
        node->setDevicePixelRatio(scale);
        m_baked = smallest;
        m_bakedScale = scale;
    }
    const QMarginsF patches = m_shape.patches();
    node->setPadding(patches.left(), patches.top(), patches.right(), patches.bottom());
    node->setBounds(boundingRect().marginsAdded(m_shape.reach()));
    node->update();
    return node;
}

void ShadowLayer::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size()) update();
}

void ShadowLayer::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged) update();
    QQuickItem::itemChange(change, data);
}

} // namespace vantle
