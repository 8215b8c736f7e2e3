#include "surfaces/kit/painters/Marks.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

namespace vantle::marks {

namespace {

constexpr double kGrid = 16;     // units of the icons
constexpr double kRoundFrom = 3; // px of thickness; thinner ends stay square

/// The target of a mark.
struct Sheet {
    QPainter& painter;
    int side;      ///< pixels
    double stroke; ///< pixels

    [[nodiscard]] double at(double units) const { return units * side / kGrid; }
    /// Snaps to the edge or the centre of a pixel.
    [[nodiscard]] double half(double units) const { return std::round(2 * at(units)) / 2; }
    /// Returns the nearest length in whole pixels that can be centred in `room`.
    [[nodiscard]] static int centred(double length, int room) {
        return std::max(2 - room % 2,
                        room - 2 * static_cast<int>(std::lround((room - length) / 2)));
    }

    void line(std::initializer_list<QPointF> points) const {
        painter.setPen(QPen(Qt::white, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(QPolygonF(QList<QPointF>(points)));
    }
    void block(QRectF rect, double radius) const {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(rect, radius, radius);
    }
};

using Draw = void (*)(const Sheet&);

void close(const Sheet& sheet) {
    const double from = sheet.half(4);
    const double to = sheet.side - from;
    sheet.line({{from, from}, {to, to}});
    sheet.line({{to, from}, {from, to}});
}

void check(const Sheet& sheet) {
    const QPointF begin(sheet.half(3.25), sheet.half(8.5));
    const double down = sheet.half(3.25);
    sheet.line({begin, begin + QPointF(down, down), {sheet.half(12.75), sheet.half(4.75)}});
}

/// Pointing down, its ends are `units` from the sides and `top` from the top; `turn` rotates a
/// point of that into the actual direction.
template <typename Turn>
void chevron(const Sheet& sheet, double units, double top, Turn turn) {
    const double from = sheet.half(units);
    const double begin = sheet.half(top);
    const double middle = sheet.side / 2.0;
    sheet.line(
        {turn(from, begin), turn(middle, begin + middle - from), turn(sheet.side - from, begin)});
}
void chevronDown(const Sheet& sheet) {
    chevron(sheet, 4, 6.25, [](double x, double y) { return QPointF(x, y); });
}
void chevronRight(const Sheet& sheet) {
    chevron(sheet, 3.5, 6, [](double x, double y) { return QPointF(y, x); });
}
void chevronLeft(const Sheet& sheet) {
    chevron(sheet, 3.5, 6, [&](double x, double y) { return QPointF(sheet.side - y, x); });
}

/// A horizontal stroke, optionally crossed by a vertical one.
void cross(const Sheet& sheet, double units, bool isUpright) {
    const int thickness = std::max(1, static_cast<int>(std::lround(sheet.stroke)));
    const int length = std::max(thickness, Sheet::centred(sheet.at(units), thickness));
    const int across = (sheet.side - thickness) / 2;
    const int along = across - (length - thickness) / 2;
    const double radius = thickness < kRoundFrom ? 0 : thickness / 2.0;
    QPainterPath path;
    path.setFillRule(Qt::WindingFill); // no brighter where they cross
    path.addRoundedRect(along, across, length, thickness, radius, radius);
    if (isUpright) path.addRoundedRect(across, along, thickness, length, radius, radius);
    const double light = std::min(1.0, sheet.stroke / thickness);
    sheet.painter.fillPath(path, QColor::fromRgbF(1, 1, 1, static_cast<float>(light)));
}
void plus(const Sheet& sheet) { cross(sheet, 11, true); }
void minus(const Sheet& sheet) { cross(sheet, 11, false); }
void minimise(const Sheet& sheet) { cross(sheet, 10, false); }

void pause(const Sheet& sheet) {
    const int bar = std::max(static_cast<int>(std::lround(sheet.at(2.25))),
                             static_cast<int>(std::lround(sheet.stroke)));
    const int gap = Sheet::centred(sheet.at(2.5), sheet.side);
    const int height = Sheet::centred(sheet.at(9.5), sheet.side);
    const double left = (sheet.side - gap) / 2.0 - bar;
    const double top = (sheet.side - height) / 2.0;
    const double radius = bar < kRoundFrom ? 0 : sheet.at(0.5);
    sheet.block(QRectF(left, top, bar, height), radius);
    sheet.block(QRectF(left + bar + gap, top, bar, height), radius);
}

void stop(const Sheet& sheet) {
    const int length = Sheet::centred(sheet.at(9), sheet.side);
    const double from = (sheet.side - length) / 2.0;
    sheet.block(QRectF(from, from, length, length), sheet.at(1.5));
}

/// Centred by its centroid, which its round corners keep off the third of a triangle.
void play(const Sheet& sheet) {
    constexpr double kCentroid = 0.3585; // of the width, from the vertical side
    const double width = sheet.at(8.1);
    const double left = std::round(sheet.side / 2.0 - width * kCentroid);
    const double height = Sheet::centred(sheet.at(10), sheet.side);
    const double top = (sheet.side - height) / 2;
    const double round = sheet.at(0.75);
    sheet.painter.setPen(QPen(Qt::white, 2 * round, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    sheet.painter.setBrush(Qt::white);
    sheet.painter.drawPolygon(QPolygonF({{left + round, top + 1.6 * round},
                                         {left + width - 1.2 * round, sheet.side / 2.0},
                                         {left + round, top + height - 1.6 * round}}));
}

struct Sign {
    const char* name;
    Draw draw;
};

constexpr std::array kSigns = {
    Sign{"check", check}, Sign{"chevron-down", chevronDown},
    Sign{"close", close}, Sign{"chevron-left", chevronLeft},
    Sign{"minus", minus}, Sign{"chevron-right", chevronRight},
    Sign{"pause", pause}, Sign{"minimise", minimise},
    Sign{"play", play},   Sign{"plus", plus},
    Sign{"stop", stop},
};

} // namespace

bool draw(QPainter& painter, const QString& name, int side, double stroke) {
    const auto* const sign = std::find_if(kSigns.begin(), kSigns.end(), [&](const Sign& each) {
        return name == QLatin1String(each.name);
    });
    if (sign == kSigns.end()) return false;
    painter.setRenderHint(QPainter::Antialiasing);
    sign->draw({painter, side, stroke});
    return true;
}

} // namespace vantle::marks
