// A single dot of the hour wall.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QColor>

namespace vantle {

/// A lit sphere of the item's width, with a glow beyond it; a socket when not filled; a slice when
/// `fraction` is set. Main thread.
class GlassDot : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(bool filled MEMBER m_filled NOTIFY changed)
    /// The done part of the hour, 0 to 1; negative for a whole dot.
    Q_PROPERTY(double fraction MEMBER m_fraction NOTIFY changed)

public:
    explicit GlassDot(QQuickItem* parent = nullptr) : BakedItem(parent) {}

protected:
    void paint(QPainter& painter, double scale) override;
    [[nodiscard]] QMarginsF bleed() const override;

private:
    [[nodiscard]] double radius() const;

    QColor m_color;
    bool m_filled = true;
    double m_fraction = -1.0;
};

} // namespace vantle
