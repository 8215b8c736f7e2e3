// An item that paints itself once and is then drawn from that image.
#pragma once

#include <QMarginsF>
#include <QQuickItem>

class QPainter;

namespace vantle {

/// Paints in its own coordinates at the scale of its window, again after update() or when that
/// scale changes. What it paints may reach beyond its bounds, by bleed(). A property that shows is
/// `Q_PROPERTY(... MEMBER ... NOTIFY changed)`. Main thread, with the software renderer.
class BakedItem : public QQuickItem {
    Q_OBJECT

public:
    explicit BakedItem(QQuickItem* parent = nullptr);

Q_SIGNALS:
    /// One of the properties is another: it paints again.
    void changed();

protected:
    /// `scale` is the number of device pixels in a pixel, which the painter accounts for already.
    virtual void paint(QPainter& painter, double scale) = 0;
    [[nodiscard]] virtual QMarginsF bleed() const { return {}; }

    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
};

/// Tells the views' checker of the base class. Said in the class itself, its heirs would be
/// nameless as well.
struct BakedItemForViews {
    Q_GADGET
    QML_FOREIGN(vantle::BakedItem)
    QML_ANONYMOUS
};

} // namespace vantle
