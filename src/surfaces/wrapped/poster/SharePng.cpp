#include "surfaces/wrapped/poster/SharePng.h"

#include "surfaces/wrapped/poster/SharePosterPainter.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImage>
#include <QImageWriter>
#include <QPainter>

namespace vantle {

std::optional<QByteArray> renderSharePNG(const SharePoster& poster) {
    const QSize pixels = (shareposter::size(poster) * kShareScale).toSize();
    QImage image(pixels, QImage::Format_RGB32);
    if (image.isNull()) return std::nullopt;
    {
        QPainter painter(&image);
        painter.scale(kShareScale, kShareScale);
        shareposter::draw(painter, poster, kShareScale);
    }
    image.setColorSpace(QColorSpace::SRgb);
    QByteArray png;
    QBuffer buffer(&png);
    QImageWriter writer(&buffer, "png");
    if (!writer.write(image)) return std::nullopt;
    return png;
}

} // namespace vantle
