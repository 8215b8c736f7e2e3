#include "surfaces/kit/painters/ScaledItem.h"

namespace vantle {

ScaledItem::ScaledItem(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &ScaledItem::changed, this, &QQuickItem::update);
}

void ScaledItem::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size()) update();
}

void ScaledItem::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged) update();
    QQuickItem::itemChange(change, data);
}

} // namespace vantle
