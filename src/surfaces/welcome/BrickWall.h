// A wall of faint bricks with a place for the user's.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QRectF>

namespace vantle {

/// Bricks are clipped to the item's round corners; courses grow fainter towards the top. Lengths in
/// px. Main thread.
class BrickWall : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    /// Of the item's corners.
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed)
    Q_PROPERTY(double brickRadius MEMBER m_brickRadius NOTIFY changed)
    /// The place of the user's own brick, which is not painted.
    Q_PROPERTY(QRectF place READ place CONSTANT)

public:
    explicit BrickWall(QQuickItem* parent = nullptr) : BakedItem(parent) {}

    [[nodiscard]] static QRectF place();

protected:
    void paint(QPainter& painter, double scale) override;

private:
    double m_radius = 0;
    double m_brickRadius = 0;
};

} // namespace vantle
