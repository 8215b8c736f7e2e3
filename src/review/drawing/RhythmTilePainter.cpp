#include "review/drawing/RhythmTilePainter.h"

#include "review/CardWords.h"

#include <QPainter>
#include <QTransform>

#include <cmath>

namespace vantle::rhythmtile {

namespace {

constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr double kEdge = 1;
constexpr double kEdgeOpacity = 0.16;
constexpr double kEmptyOpacity = 0.05;

// The ring of today among hundreds of small tiles.
constexpr double kSmallRing = 2;
constexpr double kSmallRingGap = 1;
constexpr double kSmallRingOpacity = 0.7;

/// The painter's pixel grid, unless it is rotated. A scaled-down picture is not snapped: gaps would
/// differ by half their width.
class Pixels {
public:
    explicit Pixels(const QPainter& painter)
        : m_device(painter.deviceTransform())
        , m_snaps(m_device.type() <= QTransform::TxScale && m_device.m11() >= 1) {}

    /// Tiles of one size keep one size; only gaps may differ, by a pixel.
    [[nodiscard]] QRectF snapped(const QRectF& area) const {
        if (!m_snaps) return area;
        const QRectF there = m_device.mapRect(area);
        const QRectF whole(std::round(there.x()), std::round(there.y()), std::round(there.width()),
                           std::round(there.height()));
        return m_device.inverted().mapRect(whole);
    }

    /// Rounds a fine line to whole pixels.
    [[nodiscard]] double snapped(double width) const {
        if (!m_snaps) return width;
        const double scale = m_device.m11();
        return std::round(width * scale) / scale;
    }

private:
    QTransform m_device;
    bool m_snaps;
};

void fill(QPainter& painter, const QRectF& area, double radius, const QColor& color) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(area, radius, radius);
}

/// Draws a line along the inside of the area.
void edge(QPainter& painter, const QRectF& area, double radius, const QColor& color, double width) {
    const double half = width / 2;
    painter.setPen(QPen(color, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(half, half, -half, -half), radius - half, radius - half);
}

} // namespace

void draw(QPainter& painter, QPointF topLeft, const TileShape& shape, const DayTile& tile) {
    if (!tile.isDay) return;
    const Pixels pixels(painter);
    const QRectF area = pixels.snapped(QRectF(topLeft, shape.size));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    fill(painter, area, shape.radius,
         tile.hasFill ? tile.fill : cardwords::withOpacity(kWhite, kEmptyOpacity));
    if (tile.isFuture)
        edge(painter, area, shape.radius, tile.outline, pixels.snapped(tile.outlineWidth));
    else if (tile.hasFill && !shape.isSmall)
        edge(painter, area, shape.radius, cardwords::withOpacity(kWhite, kEdgeOpacity),
             pixels.snapped(kEdge));
    if (tile.isToday) {
        const double width = shape.isSmall ? kSmallRing : tile.outlineWidth;
        const double away = width + (shape.isSmall ? kSmallRingGap : width);
        edge(painter, area.adjusted(-away, -away, away, away), shape.radius + away,
             shape.isSmall ? cardwords::withOpacity(kWhite, kSmallRingOpacity) : tile.outline,
             width);
    }
    painter.restore();
}

} // namespace vantle::rhythmtile
