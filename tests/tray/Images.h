// Images for tray tests, each in one plain colour or shape, so that pixels can be told.
#pragma once

#include <QIcon>
#include <QPainter>
#include <QPixmap>

#include <initializer_list>

namespace vantle::tests {

/// A square that fills the image.
inline QIcon square(const QColor& colour, std::initializer_list<int> sizes = {18, 22, 24, 36}) {
    QIcon icon;
    for (const int size : sizes) {
        QPixmap pixmap(size, size);
        pixmap.fill(colour);
        icon.addPixmap(pixmap);
    }
    return icon;
}

/// A disc, transparent around.
inline QIcon disc(const QColor& colour, std::initializer_list<int> sizes = {18, 22, 24, 36}) {
    QIcon icon;
    for (const int size : sizes) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawEllipse(QRectF(0.15 * size, 0.15 * size, 0.7 * size, 0.7 * size));
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace vantle::tests
