// Dots that fly from a centre once.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QColor>
#include <QList>

namespace vantle {

/// Draws them at `progress` around the item's centre, cycling through its colours. They fly beyond
/// the item. No image before the start and after the end. Main thread.
class BurstDots : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QColor> colors MEMBER m_colors NOTIFY changed)
    /// 0 to 1 during the burst.
    Q_PROPERTY(double progress MEMBER m_progress NOTIFY changed)

public:
    explicit BurstDots(QQuickItem* parent = nullptr) : BakedItem(parent) {}

protected:
    void paint(QPainter& painter, double scale) override;
    [[nodiscard]] QMarginsF bleed() const override;
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    QList<QColor> m_colors;
    double m_progress = 0;
};

} // namespace vantle
