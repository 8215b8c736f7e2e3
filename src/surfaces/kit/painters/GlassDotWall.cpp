#include "surfaces/kit/painters/GlassDotWall.h"

#include "surfaces/kit/painters/GlassDotPainter.h"

#include <QPainter>

#include <algorithm>

namespace vantle {

WallGrid GlassDotWall::grid() const {
    return {std::max(m_columns, 1), std::max(m_rows, 1), size(), m_isFlush};
}

QMarginsF GlassDotWall::bleed() const {
    const double glow = grid().radius() * glassdotpainter::kGlowReach;
    const QSizeF cell = grid().cellSize();
    const double inside = m_isFlush ? grid().radius() : cell.width() / 2;
    const double sides = std::max(0.0, glow - inside) + 1.0;
    const double ends = std::max(0.0, glow - cell.height() / 2) + 1.0;
    return {sides, ends, sides, ends};
}

void GlassDotWall::geometryChange(const QRectF& now, const QRectF& before) {
    BakedItem::geometryChange(now, before);
    if (now.size() != before.size()) Q_EMIT changed();
}

void GlassDotWall::paint(QPainter& painter, double scale) {
    const WallGrid wall = grid();
    const double radius = wall.radius();
    const int given = static_cast<int>(std::min<qsizetype>(m_colors.size(), wall.cells()));
    const int lit = m_filledCount < 0 ? given : std::min(m_filledCount, given);
    const bool hasSlice = m_sliceFraction > 0.0 && lit < wall.cells();
    const int firstSocket = lit + (hasSlice ? 1 : 0);

    for (int i = firstSocket; m_hasSockets && i < wall.cells(); ++i)
        m_images.draw(painter, wall.center(i), {}, radius, scale);
    if (hasSlice)
        glassdotpainter::drawSlice(painter, wall.center(lit), radius, m_sliceColor,
                                   m_sliceFraction);
    for (int i = 0; i < lit; ++i)
        m_images.draw(painter, wall.center(i), m_colors[i], radius, scale);
}

} // namespace vantle
