// An item that paints itself once and is then drawn from that image.
#pragma once

#include "surfaces/kit/painters/ScaledItem.h"

#include <QMarginsF>

class QPainter;

namespace vantle {

/// Paints in its own coordinates at the scale of its window. What it paints may reach beyond its
/// bounds, by bleed(). Main thread, with the software renderer.
class BakedItem : public vantle::ScaledItem {
    Q_OBJECT

public:
    using ScaledItem::ScaledItem;

protected:
    /// `scale` is the number of device pixels in a pixel, which the painter accounts for already.
    virtual void paint(QPainter& painter, double scale) = 0;
    [[nodiscard]] virtual QMarginsF bleed() const { return {}; }

    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
};

/// Tells the views' checker of the base class. Said in the class itself, its heirs would be
/// nameless as well.
struct BakedItemForViews {
    Q_GADGET
    QML_FOREIGN(vantle::BakedItem)
    QML_ANONYMOUS
};

} // namespace vantle
