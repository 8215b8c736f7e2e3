#include "surfaces/kit/painters/GlassDotImages.h"

#include "surfaces/kit/painters/GlassDotPainter.h"

#include <QPainter>

#include <cmath>

namespace vantle {
namespace {

// Scales and radii change with windows, colours are few. More images come from resizing a window,
// whose former sizes are not needed again.
constexpr qsizetype kMostImages = 256;
// For the rim, which straddles the radius, and its soft edge.
constexpr double kSocketReach = 1.1;

QImage bake(const QColor& color, double radius, double scale) {
    const double reach =
        color.isValid() ? radius * glassdotpainter::kGlowReach : radius * kSocketReach;
    // An odd side puts the centre on a pixel's middle.
    const int side = 2 * (static_cast<int>(std::ceil(reach * scale)) + 1) + 1;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(side / 2.0, side / 2.0);
    painter.scale(scale, scale);
    if (color.isValid())
        glassdotpainter::drawFilled(painter, {}, radius, color);
    else
        glassdotpainter::drawEmpty(painter, {}, radius);
    painter.end();
    image.setDevicePixelRatio(scale);
    return image;
}

} // namespace

const QImage& GlassDotImages::image(const QColor& color, double radius, double scale) {
    const Key key{color.rgba(), color.isValid(), radius, scale};
    if (const auto found = m_images.constFind(key); found != m_images.constEnd()) return *found;
    if (m_images.size() >= kMostImages) m_images.clear();
    return *m_images.insert(key, bake(color, radius, scale));
}

void GlassDotImages::draw(QPainter& painter, QPointF center, const QColor& color, double radius,
                          double scale) {
    const QImage& dot = image(color, radius, scale);
    const double half = dot.width() / (2.0 * scale);
    const auto whole = [scale](double at) { return std::round(at * scale) / scale; };
    painter.drawImage(QPointF(whole(center.x() - half), whole(center.y() - half)), dot);
}

} // namespace vantle
