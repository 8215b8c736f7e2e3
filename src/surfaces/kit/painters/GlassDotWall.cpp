#include "surfaces/kit/painters/GlassDotWall.h"

#include "surfaces/kit/painters/GlassDotPainter.h"

#include <QPainter>

#include <algorithm>

namespace vantle {

void GlassDotWall::setColors(const QList<QColor>& colors) {
    if (show(m_colors, colors)) Q_EMIT colorsChanged();
}

void GlassDotWall::setColumns(int columns) {
    if (show(m_columns, std::max(columns, 1))) Q_EMIT gridChanged();
}

void GlassDotWall::setRows(int rows) {
    if (show(m_rows, std::max(rows, 1))) Q_EMIT gridChanged();
}

void GlassDotWall::setFilledCount(int count) {
    if (show(m_filledCount, count)) Q_EMIT filledCountChanged();
}

void GlassDotWall::setSliceFraction(double fraction) {
    if (show(m_sliceFraction, fraction)) Q_EMIT sliceChanged();
}

void GlassDotWall::setSliceColor(const QColor& color) {
    if (show(m_sliceColor, color)) Q_EMIT sliceChanged();
}

void GlassDotWall::setSockets(bool sockets) {
    if (show(m_hasSockets, sockets)) Q_EMIT socketsChanged();
}

WallGrid GlassDotWall::grid() const { return {m_columns, m_rows, size()}; }

QMarginsF GlassDotWall::bleed() const {
    const double glow = grid().radius() * glassdotpainter::kGlowReach;
    const QSizeF cell = grid().cellSize();
    const double sides = std::max(0.0, glow - cell.width() / 2) + 1.0;
    const double ends = std::max(0.0, glow - cell.height() / 2) + 1.0;
    return {sides, ends, sides, ends};
}

void GlassDotWall::geometryChange(const QRectF& now, const QRectF& before) {
    BakedItem::geometryChange(now, before);
    if (now.size() != before.size()) Q_EMIT gridChanged();
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
