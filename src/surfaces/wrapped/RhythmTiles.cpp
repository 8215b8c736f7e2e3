#include "surfaces/wrapped/RhythmTiles.h"

#include "review/drawing/RhythmPainter.h"

#include <cmath>

namespace vantle {

void RhythmTiles::setPicture(const RhythmPicture& picture) {
    m_picture = picture;
    arrange();
    Q_EMIT pictureChanged();
}

int RhythmTiles::growTime() {
    return static_cast<int>(std::lround(1000 * rhythmpainter::growSeconds()));
}

int RhythmTiles::dayAt(double x, double y) const { return m_layout.spotAt({x, y}); }

QRectF RhythmTiles::dayArea(int day) const { return isDay(day) ? m_layout.area(day) : QRectF(); }

QString RhythmTiles::dayHelp(int day) const {
    return isDay(day) ? m_layout.spots[static_cast<std::size_t>(day)].tile.help() : QString();
}

void RhythmTiles::paint(QPainter& painter, double /*scale*/) {
    std::optional<double> seconds;
    if (m_growing >= 0 && m_picture.isWeek()) seconds = m_growing / 1000;
    rhythmpainter::draw(painter, m_layout, {m_font, m_color, m_futureColor}, seconds);
}

QMarginsF RhythmTiles::bleed() const {
    return {rhythmtile::reach, rhythmtile::reach, rhythmtile::reach, rhythmtile::reach};
}

void RhythmTiles::geometryChange(const QRectF& now, const QRectF& before) {
    BakedItem::geometryChange(now, before);
    if (now.width() != before.width()) arrange();
}

void RhythmTiles::arrange() {
    m_layout = RhythmLayout::of(m_picture, width());
    setImplicitHeight(m_layout.size.height());
    update();
}

} // namespace vantle
