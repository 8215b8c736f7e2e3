// The arrow of a popover: the upper corner of a square.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QColor>

namespace vantle {

/// Its lowest px covers the popover's edge. Main thread.
class PopoverArrow : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(QColor edge MEMBER m_edge NOTIFY changed)
    /// Of the square, in px.
    Q_PROPERTY(double side MEMBER m_side NOTIFY changed)
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed)

public:
    explicit PopoverArrow(QQuickItem* parent = nullptr) : BakedItem(parent) {}

protected:
    void paint(QPainter& painter, double scale) override;

private:
    QColor m_color = Qt::transparent;
    QColor m_edge = Qt::transparent;
    double m_side = 0;
    double m_radius = 0;
};

} // namespace vantle
