#include "review/drawing/RhythmPainter.h"

#include "review/RhythmMap.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vantle::rhythmpainter {

namespace {

constexpr int kLastOfWeek = 6;
constexpr double kGrowsFrom = 0.4; // scale

void drawLabel(QPainter& painter, const RhythmLayout::Label& label, const Lettering& lettering) {
    const QFontMetricsF letters(lettering.font);
    const double left = label.isCentered ? letters.horizontalAdvance(label.text) / 2 : 0;
    // Centres the capitals in their line, on whole pixels for sharpness.
    const double baseline =
        std::round(label.top.y() + (RhythmLayout::labelLine + letters.capHeight()) / 2);
    painter.setPen(label.isFuture ? lettering.futureColor : lettering.color);
    painter.drawText(QPointF(label.top.x() - left, baseline), label.text);
}

/// A growing tile scales from its centre.
void drawGrowing(QPainter& painter, const QRectF& area, const TileShape& shape, const DayTile& tile,
                 double way) {
    if (way <= 0) return;
    const double scale = kGrowsFrom + (1 - kGrowsFrom) * way;
    painter.save();
    painter.setOpacity(way);
    painter.translate(area.center());
    painter.scale(scale, scale);
    painter.translate(-area.center());
    rhythmtile::draw(painter, area.topLeft(), shape, tile);
    painter.restore();
}

} // namespace

double growSeconds() { return rhythmmap::weekDelay(kLastOfWeek) + rhythmmap::weekGrowSeconds; }

double grown(int index, double seconds) {
    const double part =
        std::clamp((seconds - rhythmmap::weekDelay(index)) / rhythmmap::weekGrowSeconds, 0.0, 1.0);
    return 1 - std::pow(1 - part, 3);
}

void draw(QPainter& painter, const RhythmLayout& layout, const Lettering& lettering,
          std::optional<double> growing) {
    painter.save();
    painter.setFont(lettering.font);
    for (const auto& label : layout.labels)
        drawLabel(painter, label, lettering);
    for (const bool today : {false, true})
        for (std::size_t i = 0; i < layout.spots.size(); ++i) {
            const DayTile& tile = layout.spots[i].tile;
            if (tile.isToday != today) continue;
            const int index = static_cast<int>(i);
            drawGrowing(painter, layout.area(index), layout.shape, tile,
                        growing ? grown(index, *growing) : 1);
        }
    painter.restore();
}

} // namespace vantle::rhythmpainter
