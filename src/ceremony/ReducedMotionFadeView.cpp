#include "ceremony/ReducedMotionFadeView.h"

#include <QPainter>
#include <QRadialGradient>

#include <algorithm>

namespace vantle {

std::optional<ReducedMotionFadeView::Frame> ReducedMotionFadeView::frameAt(Seconds t) {
    const double e = t.count();
    if (e < 0 || e >= duration.count()) return std::nullopt;
    const double level = e < 0.3 ? e / 0.3 : std::max(1 - (e - 0.3) / 0.6, 0.0);
    const double f = 0.22 * level;
    return Frame{f, 0.9 * f, 220};
}

void ReducedMotionFadeView::paint(QImage& picture, Seconds t) {
    const auto frame = frameAt(t);
    if (!frame) return picture.fill(Qt::transparent);
    picture.fill(QColor::fromRgbF(0, 0, 0, float(frame->black)));
    QPainter painter(&picture);
    const QPointF centre = QRectF(QPointF(), picture.deviceIndependentSize()).center();
    QColor color = QColor::fromRgb(m_accent);
    QRadialGradient glow(centre, frame->radius);
    color.setAlphaF(static_cast<float>(frame->centre));
    glow.setColorAt(0, color);
    color.setAlphaF(0);
    glow.setColorAt(1, color);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(centre, frame->radius, frame->radius);
}

} // namespace vantle
