#include "surfaces/kit/painters/KitIcon.h"

#include "surfaces/kit/painters/Marks.h"

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

namespace vantle {
namespace {

constexpr double kGrid = 16.0;
constexpr double kStroke = 1.5; // px, of a mark up to the grid's size

} // namespace

KitIcon::KitIcon(QQuickItem* parent) : BakedItem(parent) { setImplicitSize(kGrid, kGrid); }

void KitIcon::paint(QPainter& painter, double scale) {
    if (m_name.isEmpty()) return;
    const double side = std::min(width(), height());
    const double stroke = m_stroke > 0 ? m_stroke : kStroke * std::max(1.0, side / kGrid);
    painter.save();
    painter.resetTransform();
    const int pixels = static_cast<int>(std::lround(side * scale));
    const bool isMark = marks::draw(painter, m_name, pixels, stroke * scale);
    painter.restore();
    if (!isMark) {
        QSvgRenderer svg(QStringLiteral(":/qt/qml/Vantle/Kit/icons/%1.svg").arg(m_name));
        svg.setAspectRatioMode(Qt::KeepAspectRatio);
        svg.render(&painter, boundingRect());
    }
    // Replaces the white shape's colour, overlaps included.
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(boundingRect(), m_color);
}

} // namespace vantle
