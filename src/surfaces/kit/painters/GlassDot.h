// One dot of the hour wall, for a place of its own.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QColor>

namespace vantle {

/// A lit sphere as wide as the item, whose glow reaches beyond it; a socket when it is not filled;
/// a slice when `fraction` is given. Main thread.
class GlassDot : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    Q_PROPERTY(bool filled READ isFilled WRITE setFilled NOTIFY changed)
    /// How much of the hour is done, 0 to 1; negative for a whole dot.
    Q_PROPERTY(double fraction READ fraction WRITE setFraction NOTIFY changed)

public:
    explicit GlassDot(QQuickItem* parent = nullptr) : BakedItem(parent) {}

    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor& color);
    [[nodiscard]] bool isFilled() const { return m_filled; }
    void setFilled(bool filled);
    [[nodiscard]] double fraction() const { return m_fraction; }
    void setFraction(double fraction);

Q_SIGNALS:
    void changed();

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
