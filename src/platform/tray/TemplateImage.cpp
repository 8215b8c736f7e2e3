#include "platform/tray/TemplateImage.h"

#include "platform/tray/TrayPixmaps.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <vector>

namespace vantle {

namespace {

constexpr int kMiddleGray = 128;
constexpr int kSeenDifference = 64; ///< gray levels by which two colours are clearly distinct

/// The outline's width in px for images up to kEdgeGrowsFrom px; larger images have a wider one.
/// One pixel is too little: it only mixes with the smoothed edge.
constexpr double kEdgeReach = 1.5;
constexpr double kEdgeGrowsFrom = 24;
constexpr double kEdgeOpacity = 0.9;

/// The alpha from which a pixel gets an outline, and a full one. The plate below the shape, at 0.4,
/// gets none.
constexpr double kEdgedFrom = 0.42;
constexpr double kFullyEdgedFrom = 0.52;

QColor oppositeOf(const QColor& colour) { return isDark(colour) ? Qt::white : Qt::black; }

double edgeWeight(QRgb pixel) {
    return std::clamp((qAlpha(pixel) / 255.0 - kEdgedFrom) / (kFullyEdgedFrom - kEdgedFrom), 0.0,
                      1.0);
}

/// Returns the strength of the outline around a full pixel, by distance: a square of 2 * around + 1
/// values a side.
std::vector<double> outlineOfOnePixel(double reach, int around) {
    std::vector<double> strengths;
    const std::size_t side = 2 * static_cast<std::size_t>(around) + 1;
    strengths.reserve(side * side);
    for (int dy = -around; dy <= around; ++dy)
        for (int dx = -around; dx <= around; ++dx)
            strengths.push_back(std::clamp(reach + 0.5 - std::hypot(dx, dy), 0.0, 1.0));
    return strengths;
}

/// Returns the strength of the outline at each pixel, 0 to 1, row by row. Goes by the pixels of the
/// shape, since most of an image is empty: the image is drawn before the item stands in the tray.
std::vector<double> outlineOf(const QImage& image, double reach) {
    const int width = image.width();
    const int height = image.height();
    const int around = static_cast<int>(std::ceil(reach));
    const int side = 2 * around + 1;
    const std::vector<double> one = outlineOfOnePixel(reach, around);
    std::vector<double> strengths(static_cast<std::size_t>(width) *
                                  static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < width; ++x) {
            const double weight = edgeWeight(row[x]);
            if (weight == 0) continue;
            for (int dy = std::max(-around, -y); dy <= std::min(around, height - 1 - y); ++dy) {
                double* const line = strengths.data() + std::ptrdiff_t{width} * (y + dy) + x;
                const double* const near =
                    one.data() + std::ptrdiff_t{side} * (dy + around) + around;
                for (int dx = std::max(-around, -x); dx <= std::min(around, width - 1 - x); ++dx)
                    line[dx] = std::max(line[dx], weight * near[dx]);
            }
        }
    }
    return strengths;
}

/// Requires an image of the format ARGB32.
QImage withEdge(const QImage& image, const QColor& edgeColour) {
    const double reach = kEdgeReach * std::max(1.0, image.width() / kEdgeGrowsFrom);
    const std::vector<double> outline = outlineOf(image, reach);
    QImage edged(image.size(), QImage::Format_ARGB32);
    QColor colour = edgeColour;
    auto strength = outline.begin();
    for (int y = 0; y < edged.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(edged.scanLine(y));
        for (int x = 0; x < edged.width(); ++x, ++strength) {
            colour.setAlphaF(static_cast<float>(kEdgeOpacity * *strength));
            row[x] = colour.rgba();
        }
    }
    QPainter painter(&edged);
    painter.drawImage(0, 0, image);
    painter.end();
    return edged;
}

QList<QSize> sizesOf(const QIcon& image) {
    QList<QSize> sizes = image.availableSizes();
    if (sizes.isEmpty()) // an icon that draws any size
        for (const int size : kTraySizes)
            sizes.append(QSize(size, size));
    return sizes;
}

} // namespace

bool isDark(const QColor& colour) { return qGray(colour.rgb()) < kMiddleGray; }

QIcon inColour(const QIcon& shape, const QColor& colour) {
    QIcon coloured;
    for (const QSize& size : sizesOf(shape)) {
        QPixmap pixmap = shape.pixmap(size, 1.0);
        QPainter painter(&pixmap);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(pixmap.rect(), colour);
        painter.end();
        coloured.addPixmap(pixmap);
    }
    return coloured;
}

QIcon inColourWithEdge(const QIcon& shape, const QColor& colour) {
    const QIcon coloured = inColour(shape, colour);
    QIcon edged;
    for (const QSize& size : coloured.availableSizes()) {
        const QImage image = coloured.pixmap(size, 1.0).toImage();
        edged.addPixmap(QPixmap::fromImage(
            withEdge(image.convertToFormat(QImage::Format_ARGB32), oppositeOf(colour))));
    }
    return edged;
}

QColor barTextColour(const std::optional<QColor>& ground) {
    QColor text = Qt::white;
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr)
        text = QGuiApplication::palette().color(QPalette::Active, QPalette::WindowText);
    if (!ground) return text;
    const int groundGray = qGray(ground->rgb());
    if (std::abs(groundGray - qGray(text.rgb())) >= kSeenDifference) return text;
    return oppositeOf(*ground);
}

} // namespace vantle
