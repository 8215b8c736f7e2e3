// A rounded ground with an edge drawn over its rim.
#pragma once

#include "surfaces/kit/painters/ScaledItem.h"

#include <QColor>

namespace vantle {

/// Lies on whole device pixels at every scale, which the Rectangle of the software renderer does
/// not: at 1.25 it is torn, at 1.5 a round one is broken. Its corners and rims are painted once,
/// and what is between them is stretched. Main thread, with the software renderer.
class Plate : public vantle::ScaledItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    /// In px; half of the shorter side at most.
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed)
    /// Clear: none.
    Q_PROPERTY(QColor edge MEMBER m_edge NOTIFY changed)
    /// In px, drawn as whole device pixels, one at least.
    Q_PROPERTY(double edgeWidth MEMBER m_edgeWidth NOTIFY changed)

public:
    explicit Plate(QQuickItem* parent = nullptr) : ScaledItem(parent) {}

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    QColor m_color = Qt::transparent;
    double m_radius = 0;
    QColor m_edge = Qt::transparent;
    double m_edgeWidth = 1;
};

} // namespace vantle
