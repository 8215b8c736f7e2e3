// A ring of small glass dots around a figure.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"
#include "surfaces/kit/painters/GlassDotImages.h"

#include <QColor>
#include <QList>

namespace vantle {

/// `count` dots on a circle that fits into the item, the first at the top, clockwise in its colours
/// by turns. Main thread.
class DotRing : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QColor> colors READ colors WRITE setColors NOTIFY changed)
    Q_PROPERTY(int count READ count WRITE setCount NOTIFY changed)
    /// px
    Q_PROPERTY(double dotRadius READ dotRadius WRITE setDotRadius NOTIFY changed)

public:
    explicit DotRing(QQuickItem* parent = nullptr) : BakedItem(parent) {}

    [[nodiscard]] QList<QColor> colors() const { return m_colors; }
    void setColors(const QList<QColor>& colors);
    [[nodiscard]] int count() const { return m_count; }
    void setCount(int count);
    [[nodiscard]] double dotRadius() const { return m_dotRadius; }
    void setDotRadius(double radius);

Q_SIGNALS:
    void changed();

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
