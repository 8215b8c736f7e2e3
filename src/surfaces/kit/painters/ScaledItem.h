// The base of items drawn for their exact size and scale.
#pragma once

#include <QQuickItem>

namespace vantle {

/// Redraws when its size, its window's scale or a visible property changes. Declare such a property
/// as `Q_PROPERTY(... MEMBER ... NOTIFY changed)`. Main thread.
class ScaledItem : public QQuickItem {
    Q_OBJECT

public:
    explicit ScaledItem(QQuickItem* parent = nullptr);

Q_SIGNALS:
    /// A visible property changed.
    void changed();

protected:
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
};

/// Declares the base class to qmllint. Declared in the class itself, its subclasses would be
/// anonymous too.
struct ScaledItemForViews {
    Q_GADGET
    QML_FOREIGN(vantle::ScaledItem)
    QML_ANONYMOUS
};

} // namespace vantle
