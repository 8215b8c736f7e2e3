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
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)

public:
    explicit FlatDot(QQuickItem* parent = nullptr) : BakedItem(parent) {}

protected:
    void paint(QPainter& painter, double scale) override;

private:
    QColor m_color = Qt::transparent;
};

} // namespace vantle
