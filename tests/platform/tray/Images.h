// Images for tray tests, each in one plain colour or shape, so that pixels can be told.
#pragma once

#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <cstdlib>
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

/// How many pixels of the image differ so much from a panel of that colour that an eye sees them.
inline int seenOn(const QColor& ground, const QImage& image) {
    constexpr int kSeen = 60; // of 255 grays
    QImage panel(image.size(), QImage::Format_RGB32);
    panel.fill(ground);
    QPainter painter(&panel);
    painter.drawImage(0, 0, image);
    painter.end();
    int seen = 0;
    for (int y = 0; y < panel.height(); ++y)
        for (int x = 0; x < panel.width(); ++x)
            seen += std::abs(qGray(panel.pixel(x, y)) - qGray(ground.rgb())) >= kSeen;
    return seen;
}

} // namespace vantle::tests
