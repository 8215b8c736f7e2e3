#include "platform/desktop/TemplateImage.h"

#include "platform/desktop/TrayPixmaps.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace vantle {

namespace {

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

QColor barTextColour() {
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr)
        return QColor(Qt::white);
    return QGuiApplication::palette().color(QPalette::Active, QPalette::WindowText);
}

} // namespace vantle
