#include "surfaces/menubar/MenuBarDrawing.h"

#include <QColor>
#include <QPainter>

#include <cmath>
#include <numbers>

namespace vantle::menubar {
namespace {

constexpr double kSide = 18.0;
constexpr double kBrickHeight = 3.2;
constexpr QPointF kCentre{9.0, 9.0};

/// A brick of the wall: left edge, upper edge from the top, width.
struct Brick {
    double x;
    double y;
    double width;
    double radius;
};

constexpr Brick kWall[] = {
    {1.5, 13.3, 6.4, 1.0}, {9.1, 13.3, 7.4, 1.0},                        // bottom row
    {1.5, 8.9, 4.4, 1.0},  {7.1, 8.9, 6.4, 1.0},  {14.7, 8.9, 1.8, 0.8}, // middle row
    {1.5, 4.5, 6.4, 1.0},                                                // top row
};

/// The brick being laid: centre and rotation, right end up.
constexpr QPointF kLaidCentre{12.6, 4.4};
constexpr double kLaidWidth = 5.8;
constexpr double kLaidDegrees = -26.0;

/// The look of a dot. Radii in units, alpha 0 to 1.
struct Dot {
    double coreRadius;
    double coreAlpha;
    double haloRadius;
    double haloAlpha;
};

constexpr Dot kPausedDot{3.4, 0.45, 6.8, 0.12};

/// The bars of the pause, left and right of the centre.
constexpr QSizeF kPauseBar{1.2, 4.4};
constexpr double kPauseGap = 0.8;
constexpr double kPauseBarAlpha = 0.9;

/// On a light bar a halo loses half of its contrast, and white pause bars all of it.
constexpr double kHaloOnLight = 2;
constexpr QColor kInk(0x0A, 0x0A, 0x0F);

/// The plate behind the image while the panel is open, visible on light and dark bars.
constexpr QColor kPlateColor(0x80, 0x80, 0x80);
constexpr double kPlateAlpha = 0.4;
constexpr double kPlateRadius = 4.0;

Dot breathingDot(int phase) {
    const double turn = 2.0 * std::numbers::pi * phase / kPhases;
    const double fullness = std::sin(turn) * 0.5 + 0.5;
    const double coreRadius = 3.4 + 1.1 * fullness;
    return {coreRadius, 0.62 + 0.38 * fullness, coreRadius + 3.4, 0.1 + 0.16 * fullness};
}

QColor withAlpha(QColor color, double alpha) {
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

void fillCircle(QPainter& painter, double radius, const QColor& color) {
    painter.setBrush(color);
    painter.drawEllipse(kCentre, radius, radius);
}

/// The gap between the pause bars. Antialiasing would close a gap below one pixel, so there it is
/// two whole pixels, or one in an odd size.
double pauseGap(int pixels) {
    const double unit = pixels / kSide;
    if (kPauseGap * unit >= 1.0) return kPauseGap;
    return (pixels % 2 == 0 ? 2.0 : 1.0) / unit;
}

void fillPauseBars(QPainter& painter, double gap, const QColor& ink) {
    const double top = kCentre.y() - kPauseBar.height() / 2;
    const QColor color = withAlpha(ink, kPauseBarAlpha);
    for (const double left : {kCentre.x() - gap / 2 - kPauseBar.width(), kCentre.x() + gap / 2})
        painter.fillRect(QRectF(QPointF(left, top), kPauseBar), color);
}

template <typename Draw>
QImage drawn(int pixels, Draw draw) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels / kSide, pixels / kSide);
    painter.setPen(Qt::NoPen);
    draw(painter);
    return image;
}

} // namespace

QImage drawBrick(int pixels) {
    return drawn(pixels, [](QPainter& painter) {
        painter.setBrush(Qt::black);
        for (const Brick& brick : kWall)
            painter.drawRoundedRect(QRectF(brick.x, brick.y, brick.width, kBrickHeight),
                                    brick.radius, brick.radius);
        painter.translate(kLaidCentre);
        painter.rotate(kLaidDegrees);
        painter.drawRoundedRect(
            QRectF(-kLaidWidth / 2, -kBrickHeight / 2, kLaidWidth, kBrickHeight), 1.0, 1.0);
    });
}

QImage drawStatusDot(int pixels, std::uint32_t hexRGB, int phase, bool paused, bool onLight) {
    return drawn(pixels, [=](QPainter& painter) {
        const QColor color(QRgb{hexRGB & 0xFFFFFFU});
        const Dot dot = paused ? kPausedDot : breathingDot(phase);
        const double halo = dot.haloAlpha * (onLight ? kHaloOnLight : 1);
        fillCircle(painter, dot.haloRadius, withAlpha(color, halo));
        fillCircle(painter, dot.coreRadius, withAlpha(color, dot.coreAlpha));
        if (paused) fillPauseBars(painter, pauseGap(pixels), onLight ? kInk : QColor(Qt::white));
    });
}

QImage onPlate(const QImage& image) {
    return drawn(image.width(), [&](QPainter& painter) {
        painter.setBrush(withAlpha(kPlateColor, kPlateAlpha));
        painter.drawRoundedRect(QRectF(0, 0, kSide, kSide), kPlateRadius, kPlateRadius);
        painter.drawImage(QRectF(0, 0, kSide, kSide), image);
    });
}

} // namespace vantle::menubar
