// A ring of small glass dots.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"
#include "surfaces/kit/painters/GlassDotImages.h"

#include <QColor>
#include <QList>

namespace vantle {

/// `count` dots on the largest circle in the item, from the top clockwise, cycling through its
/// colours. Main thread.
class DotRing : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QColor> colors MEMBER m_colors NOTIFY changed)
    Q_PROPERTY(int count MEMBER m_count NOTIFY changed)
    /// px
    Q_PROPERTY(double dotRadius MEMBER m_dotRadius NOTIFY changed)

public:
    explicit DotRing(QQuickItem* parent = nullptr) : BakedItem(parent) {}

protected:
    void paint(QPainter& painter, double scale) override;
    [[nodiscard]] QMarginsF bleed() const override;

private:
    QList<QColor> m_colors;
    int m_count = 20;
    double m_dotRadius = 3.75;
    GlassDotImages m_images;
};

} // namespace vantle
