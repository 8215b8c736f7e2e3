// The base of items that paint themselves into an image once.
#pragma once

#include "surfaces/kit/painters/ScaledItem.h"

#include <QMarginsF>

class QPainter;

namespace vantle {

/// Paints in its own coordinates at its window's scale. May paint beyond its bounds, by bleed().
/// For the software renderer. Main thread.
class BakedItem : public vantle::ScaledItem {
    Q_OBJECT

public:
    using ScaledItem::ScaledItem;

protected:
    /// `scale` is in device pixels per pixel; the painter already applies it.
    virtual void paint(QPainter& painter, double scale) = 0;
    [[nodiscard]] virtual QMarginsF bleed() const { return {}; }

    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
};

/// Declares the base class to qmllint. Declared in the class itself, its subclasses would be
/// anonymous too.
struct BakedItemForViews {
    Q_GADGET
    QML_FOREIGN(vantle::BakedItem)
    QML_ANONYMOUS
};

} // namespace vantle
