#include "surfaces/kit/painters/ShadowLayer.h"

#include "surfaces/kit/painters/PatchesNode.h"

#include <QQuickWindow>

namespace vantle {

void ShadowLayer::set(double& member, double value) {
    if (member == value) return;
    member = value;
    Q_EMIT changed();
}

QSGNode* ShadowLayer::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/) {
    const double scale = window()->effectiveDevicePixelRatio();
    m_shape.size = size();
    const ShadowShape shape = m_shape.atScale(scale);
    if (shape.size.isEmpty() || shape.strength <= 0.0 || shape.blur <= 0.0) {
        delete old;
        m_baked = {};
        return nullptr;
    }
    auto* node = static_cast<PatchesNode*>(old);
    if (!node) {
        node = new PatchesNode(*window());
        m_baked = {};
    }
    if (const ShadowShape smallest = shape.smallest(); smallest != m_baked) {
        node->setImage(shadowImage(smallest));
        m_baked = smallest;
    }
    const QMargins reach = shape.reach();
    node->layOut(-QPointF(reach.left(), reach.top()) / scale, shape.size.toSize().grownBy(reach),
                 shape.patches(), scale);
    return node;
}

} // namespace vantle
