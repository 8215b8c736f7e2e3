// An icon of the kit in any colour.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QColor>

namespace vantle {

/// Draws icons/<name>.svg (a grid of 16) scaled into the item, in one colour with its alpha. Marks
/// are drawn for their pixels instead (Marks.h): scaled, their strokes are grey hairlines. Draws
/// nothing for an unknown name. Main thread.
class KitIcon : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    /// Such as "close" or "chevron-down".
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    /// Stroke width of a mark in px; 0 for the default of its size.
    Q_PROPERTY(double stroke MEMBER m_stroke NOTIFY changed)

public:
    explicit KitIcon(QQuickItem* parent = nullptr);

protected:
    void paint(QPainter& painter, double scale) override;

private:
    QString m_name;
    QColor m_color = Qt::white;
    double m_stroke = 0;
};

} // namespace vantle
