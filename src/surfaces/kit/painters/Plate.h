// A rounded background with an edge over its rim.
#pragma once

#include "surfaces/kit/painters/ScaledItem.h"

#include <QColor>

namespace vantle {

/// Aligned to device pixels at every scale, unlike the software renderer's Rectangle, which is torn
/// at 1.25 and broken at 1.5. Corners and rims are painted once, the rest is stretched. For the
/// software renderer. Main thread.
class Plate : public vantle::ScaledItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    /// In px, at most half of the shorter side.
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed)
    /// Transparent for none.
    Q_PROPERTY(QColor edge MEMBER m_edge NOTIFY changed)
    /// In px, drawn as at least one whole device pixel.
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
