#include "ceremony/CeremonyFrames.h"

#include "fakes/SplitMixRandom.h"

#include <QPainter>

namespace vantle {

namespace {

constexpr double kCaptionHeight = 46; // points above the lower edge

/// An image with its centre at a point of the screen.
void drawCentered(QPainter& painter, const QImage& image, QPointF center, double opacity) {
    if (image.isNull() || opacity <= 0) return;
    const QSizeF size = image.deviceIndependentSize();
    painter.setOpacity(opacity);
    painter.drawImage(center - QPointF(size.width() / 2, size.height() / 2), image);
}

} // namespace

QImage darkDesktop(QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    QLinearGradient ground(0, 0, size.width(), size.height());
    ground.setColorAt(0, QColor(0x1E, 0x24, 0x33));
    ground.setColorAt(1, QColor(0x10, 0x11, 0x18));
    painter.fillRect(image.rect(), ground);
    const QRectF window(size.width() * 0.08, size.height() * 0.12, size.width() * 0.5,
                        size.height() * 0.62);
    painter.fillRect(window, QColor(0x2B, 0x2F, 0x3A));
    painter.fillRect(QRectF(window.topLeft(), QSizeF(window.width(), 28)),
                     QColor(0x3A, 0x3F, 0x4C));
    painter.fillRect(
        QRectF(size.width() * 0.64, size.height() * 0.2, size.width() * 0.28, size.height() * 0.5),
        QColor(0xD9, 0xDC, 0xE2));
    return image;
}

QImage showFrame(CeremonyFrameRenderer& renderer, double t) {
    const CeremonyGridModel& model = renderer.model();
    QImage screen = darkDesktop(QSizeF(model.width, model.height).toSize());
    renderer.fillField(t);
    const QImage field(reinterpret_cast<const uchar*>(renderer.fieldBuffer().data()),
                       renderer.bufferWidth(), renderer.bufferHeight(),
                       QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&screen);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const CeremonyShake::Offset shake = renderer.shakeOffset(t);
    painter.translate(shake.dx, shake.dy);
    painter.drawImage(QRectF(QPointF(), QSizeF(field.size()) * renderer.bufferScale()), field);
    drawCentered(painter, model.titleImage,
                 {model.width / 2, model.height / 2 - renderer.titleRise(t)},
                 renderer.titleOpacity(t));
    drawCentered(painter, model.captionImage, {model.width / 2, model.height - kCaptionHeight},
                 renderer.captionOpacity(t));
    return screen;
}

CeremonyFrameRenderer demoShow(CeremonyVariant variant, QSizeF size, const QString& skill) {
    constexpr std::uint64_t kSeed = 7;
    fakes::SplitMixRandom random(kSeed);
    return CeremonyFrameRenderer(CeremonyGridModel::build(variant, size, skill, random),
                                 PixelOrder::Bgra);
}

} // namespace vantle
