#include "surfaces/kit/painters/KitIcon.h"

#include <QPainter>
#include <QSvgRenderer>

namespace vantle {
namespace {

constexpr double kGrid = 16.0;

} // namespace

KitIcon::KitIcon(QQuickItem* parent) : BakedItem(parent) { setImplicitSize(kGrid, kGrid); }

void KitIcon::paint(QPainter& painter, double /*scale*/) {
    if (m_name.isEmpty()) return;
    QSvgRenderer svg(QStringLiteral(":/qt/qml/Vantle/Kit/icons/%1.svg").arg(m_name));
    svg.setAspectRatioMode(Qt::KeepAspectRatio);
    svg.render(&painter, boundingRect());
    // Replaces the white shape's colour, overlaps included.
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(boundingRect(), m_color);
}

} // namespace vantle
