// The image of a painter, for tests of its pixels.
#pragma once

#include <QImage>
#include <QPainter>

namespace vantle::drawn {

/// Paints on the windows' background, with `scale` device pixels per pixel.
template <typename Paint>
[[nodiscard]] QImage image(QSizeF size, double scale, const Paint& paint) {
    QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(0x0A, 0x0A, 0x0F));
    QPainter painter(&image);
    painter.scale(scale, scale);
    paint(painter);
    return image;
}

/// The largest difference of a channel.
[[nodiscard]] inline int distance(const QColor& one, const QColor& other) {
    return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                     std::abs(one.blue() - other.blue())});
}

} // namespace vantle::drawn
