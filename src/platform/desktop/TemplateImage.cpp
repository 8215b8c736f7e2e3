#include "platform/desktop/TemplateImage.h"

#include "platform/desktop/TrayPixmaps.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <cstdlib>

namespace vantle {

namespace {

constexpr int kMiddleGray = 128;
constexpr int kSeenDifference = 64; ///< of the grays of two colours that can be told apart well

QList<QSize> sizesOf(const QIcon& image) {
    QList<QSize> sizes = image.availableSizes();
    if (sizes.isEmpty()) // drawn on demand
        for (const int size : kTraySizes)
            sizes.append(QSize(size, size));
    return sizes;
}

} // namespace

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

QColor barTextColour(const std::optional<QColor>& ground) {
    QColor text = Qt::white;
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr)
        text = QGuiApplication::palette().color(QPalette::Active, QPalette::WindowText);
    if (!ground) return text;
    const int groundGray = qGray(ground->rgb());
    if (std::abs(groundGray - qGray(text.rgb())) >= kSeenDifference) return text;
    return groundGray < kMiddleGray ? Qt::white : Qt::black;
}

} // namespace vantle
