// An item that paints itself once and is then drawn from that image.
#pragma once

#include <QMarginsF>
#include <QQuickItem>

class QPainter;

namespace vantle {

/// Paints in its own coordinates at the scale of its window, again after update() or when that
/// scale changes. What it paints may reach beyond its bounds, by bleed(). Main thread, with the
/// software renderer.
class BakedItem : public QQuickItem {
    Q_OBJECT

public:
    explicit BakedItem(QQuickItem* parent = nullptr);

protected:
    /// `scale` is the number of device pixels in a pixel, which the painter accounts for already.
    virtual void paint(QPainter& painter, double scale) = 0;
    [[nodiscard]] virtual QMarginsF bleed() const { return {}; }

    /// Sets a property that shows: repaints when it has changed, and tells whether it has.
    template <typename T>
    bool show(T& member, const T& value) {
        if (member == value) return false;
        member = value;
        update();
        return true;
    }

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
