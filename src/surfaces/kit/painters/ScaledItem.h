// An item that is drawn for the size and the scale that it has.
#pragma once

#include <QQuickItem>

namespace vantle {

/// Draws again when its size, the scale of its window or a property that shows is another. Such a
/// property is `Q_PROPERTY(... MEMBER ... NOTIFY changed)`. Main thread.
class ScaledItem : public QQuickItem {
    Q_OBJECT

public:
    explicit ScaledItem(QQuickItem* parent = nullptr);

Q_SIGNALS:
    /// One of the properties is another.
    void changed();

protected:
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
};

/// Tells the views' checker of the base class. Said in the class itself, its heirs would be
/// nameless as well.
struct ScaledItemForViews {
    Q_GADGET
    QML_FOREIGN(vantle::ScaledItem)
    QML_ANONYMOUS
};

} // namespace vantle
