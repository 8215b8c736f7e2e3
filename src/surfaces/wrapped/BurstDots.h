// Dots that fly from a centre, once.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QColor>
#include <QList>

namespace vantle {

/// Shows them at `progress` around the item's centre, in its colours by turns. They fly beyond the
/// item. Before they set out and once they are gone there is no image. Main thread.
class BurstDots : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QColor> colors READ colors WRITE setColors NOTIFY changed)
    /// From 0 to 1 over the burst.
    Q_PROPERTY(double progress READ progress WRITE setProgress NOTIFY changed)

public:
    explicit BurstDots(QQuickItem* parent = nullptr) : BakedItem(parent) {}

    [[nodiscard]] QList<QColor> colors() const { return m_colors; }
    void setColors(const QList<QColor>& colors);
    [[nodiscard]] double progress() const { return m_progress; }
    void setProgress(double progress);

Q_SIGNALS:
    void changed();

protected:
    void paint(QPainter& painter, double scale) override;
    [[nodiscard]] QMarginsF bleed() const override;
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    QList<QColor> m_colors;
    double m_progress = 0;
};

} // namespace vantle
