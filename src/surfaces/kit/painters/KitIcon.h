// An icon of the kit in any colour.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QColor>

namespace vantle {

/// Draws icons/<name>.svg, fitted into the item, in one colour with its opacity. The icons are
/// drawn on a grid of 16. An unknown name draws nothing. Main thread.
class KitIcon : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    /// Such as "close" or "chevron-down".
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)

public:
    explicit KitIcon(QQuickItem* parent = nullptr);

protected:
    void paint(QPainter& painter, double scale) override;

private:
    QString m_name;
    QColor m_color = Qt::white;
};

} // namespace vantle
