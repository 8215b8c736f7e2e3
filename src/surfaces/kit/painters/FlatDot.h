// A round spot in one colour, the mark of a skill.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QColor>

namespace vantle {

/// Rounder than a Rectangle, whose corners the software renderer draws in whole px. Main thread.
class FlatDot : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)

public:
    explicit FlatDot(QQuickItem* parent = nullptr) : BakedItem(parent) {}

protected:
    void paint(QPainter& painter, double scale) override;

private:
    QColor m_color = Qt::transparent;
};

} // namespace vantle
