#include "surfaces/wrapped/AmbientDotPainter.h"

#include "surfaces/kit/tokens/Look.h"

#include <QPainter>

#include <cmath>
#include <numbers>

namespace vantle::ambientdot {

namespace {

using wrappedmotion::AmbientDot;

constexpr QRgb kAccent = look::kDark.accent.rgb;
constexpr double kWhiteLight = 0.16;
constexpr double kTintedLight = 0.34;
constexpr double kWhiteReach = 3.4; // radii
constexpr double kTintedReach = 5;
constexpr double kHaloLight = 0.45; // of the dot's own
constexpr double kWhiteDarkest = 0.4;
constexpr double kTintedDarkest = 0.65;

// The star falls gently to the right.
constexpr QPointF kStarWay{300, 96};
constexpr QSizeF kStarTail{78, 25};
constexpr double kStarLight = 0.55;
constexpr double kStarEvery = 8; // seconds

bool isWhite(const AmbientDot& dot) { return dot.group == AmbientDot::Group::White; }

QColor hueOf(const AmbientDot& dot) {
    if (isWhite(dot)) return Qt::white;
    return QColor::fromRgb(dot.group == AmbientDot::Group::Accent ? kAccent
                                                                  : wrappedmotion::ambientRose);
}

QColor colorOf(const AmbientDot& dot, double light) {
    QColor color = hueOf(dot);
    color.setAlphaF(static_cast<float>(light * (isWhite(dot) ? kWhiteLight : kTintedLight)));
    return color;
}

QImage clearImage(QSizeF size, double scale) {
    QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    return image;
}

double fraction(double value) { return value - std::floor(value); }

} // namespace

double reach(const AmbientDot& dot) {
    return std::ceil(dot.radius * (isWhite(dot) ? kWhiteReach : kTintedReach));
}

double strength(const AmbientDot& dot) {
    const double light = isWhite(dot) ? kWhiteLight : kTintedLight;
    return 1 - (1 - light) * (1 - light * kHaloLight); // the dot over its halo
}

double darkest(const AmbientDot& dot) { return isWhite(dot) ? kWhiteDarkest : kTintedDarkest; }

QImage image(const AmbientDot& dot, double scale) {
    const double edge = reach(dot);
    QImage made = clearImage(QSizeF(2 * edge, 2 * edge), scale);
    QPainter painter(&made);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QRadialGradient halo(QPointF(edge, edge), edge);
    halo.setColorAt(0, colorOf(dot, kHaloLight));
    halo.setColorAt(0.5, colorOf(dot, kHaloLight * 0.3));
    halo.setColorAt(1, colorOf(dot, 0));
    painter.setBrush(halo);
    painter.drawEllipse(QPointF(edge, edge), edge, edge);
    painter.setBrush(colorOf(dot, 1));
    painter.drawEllipse(QPointF(edge, edge), dot.radius, dot.radius);
    return made;
}

std::optional<Star> star(double seconds, QSizeF field) {
    const auto since = wrappedmotion::shootingStar(seconds);
    if (!since) return std::nullopt;
    const double part = *since / wrappedmotion::shootingStarSeconds;
    // Each star starts elsewhere in the upper half.
    const double slot = std::floor(seconds / kStarEvery);
    const QPointF start(field.width() * 0.55 * fraction(slot * 0.754877666),
                        field.height() * (0.08 + 0.34 * fraction(slot * 0.569840296)));
    return Star{start + kStarWay * part, std::sin(part * std::numbers::pi)};
}

QImage starImage(double scale) {
    QImage made = clearImage(kStarTail, scale);
    QPainter painter(&made);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF head(kStarTail.width() - 1, kStarTail.height() - 1);
    QLinearGradient tail(QPointF(), head);
    tail.setColorAt(0, QColor(255, 255, 255, 0));
    tail.setColorAt(1, QColor::fromRgbF(1, 1, 1, static_cast<float>(kStarLight)));
    painter.setPen(QPen(QBrush(tail), 1.2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(1, 1), head);
    return made;
}

} // namespace vantle::ambientdot
