#include "surfaces/wrapped/BurstDots.h"

#include "review/WrappedMotion.h"

#include <QPainter>
#include <QSGNode>

#include <algorithm>

namespace vantle {

namespace {

// Largest distance, fall and radius of a dot, px.
constexpr double kReach = 68 + 54 + 12 + 4;

} // namespace

QMarginsF BurstDots::bleed() const {
    const double sides = std::max(0.0, kReach - width() / 2);
    const double ends = std::max(0.0, kReach - height() / 2);
    return {sides, ends, sides, ends};
}

QSGNode* BurstDots::updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) {
    if (m_progress > 0 && m_progress < 1 && !m_colors.isEmpty())
        return BakedItem::updatePaintNode(old, data);
    delete old;
    return nullptr;
}

void BurstDots::paint(QPainter& painter, double /*scale*/) {
    painter.setPen(Qt::NoPen);
    const QPointF center = boundingRect().center();
    for (int i = 0; i < wrappedmotion::burstDots; ++i) {
        const auto dot = wrappedmotion::burstDot(i, m_progress);
        QColor color = m_colors[i % m_colors.size()];
        color.setAlphaF(static_cast<float>(dot.alpha));
        painter.setBrush(color);
        painter.drawEllipse(center + QPointF(dot.x, dot.y), dot.radius, dot.radius);
    }
}

} // namespace vantle
