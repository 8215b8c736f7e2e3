// A gradient from an opaque edge to transparency.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QColor>

namespace vantle {

/// Opaque at `edge`, transparent at the opposite side. Views use EdgeFade. Main thread.
class FadeLayer : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    /// The opaque edge: Qt.TopEdge and so on.
    Q_PROPERTY(int edge MEMBER m_edge NOTIFY changed)
    Q_PROPERTY(QColor ground MEMBER m_ground NOTIFY changed)
    /// Radius in px of the two corners at that edge: those of the window around it.
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed)

public:
    using BakedItem::BakedItem;

protected:
    void paint(QPainter& painter, double scale) override;

private:
    int m_edge = Qt::BottomEdge;
    QColor m_ground = Qt::black;
    double m_radius = 0;
};

} // namespace vantle
