#include "surfaces/kit/painters/ShadowImage.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace vantle {
namespace {

// Beyond this multiple of the blur the shadow is below one colour step.
constexpr double kReachOfBlur = 1.25;
// Three box blurs of this multiple approximate a Gaussian with a deviation of half the blur.
constexpr double kBoxOfBlur = 0.94;
constexpr int kBoxes = 3;

/// Running mean over `count` values, `stride` apart. `scratch` holds `count`.
void boxBlur(uchar* line, int count, qsizetype stride, int reach, std::vector<uchar>& scratch) {
    for (int i = 0; i < count; ++i)
        scratch[i] = line[i * stride];
    const int width = 2 * reach + 1;
    int sum = 0;
    for (int i = 0; i < std::min(reach, count); ++i)
        sum += scratch[i];
    for (int i = 0; i < count; ++i) {
        if (i + reach < count) sum += scratch[i + reach];
        line[i * stride] = static_cast<uchar>((sum + reach) / width);
        if (i - reach >= 0) sum -= scratch[i - reach];
    }
}

void blur(QImage& mask, double blur) {
    const int reach = std::max(1, static_cast<int>(std::round(blur * kBoxOfBlur / 2)));
    std::vector<uchar> scratch(std::max(mask.width(), mask.height()));
    uchar* bits = mask.bits();
    const qsizetype row = mask.bytesPerLine();
    for (int pass = 0; pass < kBoxes; ++pass) {
        for (int y = 0; y < mask.height(); ++y)
            boxBlur(bits + y * row, mask.width(), 1, reach, scratch);
        for (int x = 0; x < mask.width(); ++x)
            boxBlur(bits + x, mask.height(), row, reach, scratch);
    }
}

} // namespace

ShadowShape ShadowShape::atScale(double scale) const {
    return {QSizeF(std::round(size.width() * scale), std::round(size.height() * scale)),
            radius * scale, std::round(offset * scale), blur * scale, strength};
}

QMargins ShadowShape::reach() const {
    const int around = static_cast<int>(std::ceil(blur * kReachOfBlur));
    const int down = static_cast<int>(std::round(offset));
    return {around, std::max(0, around - down), around, around + down};
}

QMargins ShadowShape::patches() const {
    const QMargins outside = reach();
    const int around = outside.left() + static_cast<int>(std::ceil(radius));
    const int down = static_cast<int>(std::round(std::abs(offset)));
    const int sides = std::min(around, static_cast<int>(size.width() / 2));
    const int ends = std::min(around + down, static_cast<int>(size.height() / 2));
    return outside + QMargins(sides, ends, sides, ends);
}

ShadowShape ShadowShape::smallest() const {
    const QMargins inside = patches() - reach();
    ShadowShape shape = *this;
    shape.size = QSizeF(std::min(size.width(), inside.left() + inside.right() + 1.0),
                        std::min(size.height(), inside.top() + inside.bottom() + 1.0));
    return shape;
}

QImage shadowImage(const ShadowShape& shape) {
    const QMargins reach = shape.reach();
    const QRectF surface(QPointF(reach.left(), reach.top()), shape.size);
    const QSize pixels = shape.size.toSize().grownBy(reach);

    QImage mask(pixels, QImage::Format_Alpha8);
    mask.fill(0);
    QPainter maskPainter(&mask);
    maskPainter.setRenderHint(QPainter::Antialiasing);
    maskPainter.setPen(Qt::NoPen);
    maskPainter.setBrush(Qt::black);
    maskPainter.drawRoundedRect(surface.translated(0, shape.offset), shape.radius, shape.radius);
    maskPainter.end();
    blur(mask, shape.blur);

    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setOpacity(shape.strength);
    painter.drawImage(0, 0, mask);
    painter.setOpacity(1.0);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(surface, shape.radius, shape.radius);
    return image;
}

} // namespace vantle
