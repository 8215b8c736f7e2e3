// A round spot of one colour: what labels and chips mark a skill with.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QColor>

namespace vantle {

/// A rectangle with a radius can't be this round: the software renderer knows whole px only. Main
/// thread.
class FlatDot : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)

public:
    explicit FlatDot(QQuickItem* parent = nullptr) : BakedItem(parent) {}

    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor& color);

Q_SIGNALS:
    void changed();

protected:
    void paint(QPainter& painter, double scale) override;

private:
    QColor m_color = Qt::transparent;
};

} // namespace vantle
