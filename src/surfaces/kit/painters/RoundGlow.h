// The soft glow around a round control.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QColor>

namespace vantle {

/// Has the control's geometry and glows around it, not below it. Main thread.
class RoundGlow : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    /// With the opacity that the glow would have below the control.
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    /// Its reach beyond the control, in px.
    Q_PROPERTY(double reach MEMBER m_reach NOTIFY changed)

public:
    explicit RoundGlow(QQuickItem* parent = nullptr) : BakedItem(parent) {}

protected:
    void paint(QPainter& painter, double scale) override;
    [[nodiscard]] QMarginsF bleed() const override { return {m_reach, m_reach, m_reach, m_reach}; }

private:
    QColor m_color = Qt::transparent;
    double m_reach = 0;
};

} // namespace vantle
