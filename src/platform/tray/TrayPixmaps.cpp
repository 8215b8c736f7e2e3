#include "platform/tray/TrayPixmaps.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QImage>
#include <QPixmap>
#include <QtEndian>

#include <algorithm>

namespace vantle {

namespace {

TrayPixmap inNetworkOrder(const QImage& image) {
    TrayPixmap pixmap{image.width(), image.height(), QByteArray()};
    constexpr qsizetype kBytesPerPixel = 4;
    const qsizetype rowBytes = pixmap.width * kBytesPerPixel;
    pixmap.argb.resize(rowBytes * pixmap.height);
    for (int row = 0; row < pixmap.height; ++row)
        qToBigEndian<quint32>(image.constScanLine(row), pixmap.width,
                              pixmap.argb.data() + row * rowBytes);
    return pixmap;
}

} // namespace

TrayPixmaps trayPixmaps(const QIcon& image) {
    TrayPixmaps pixmaps;
    for (const int size : kTraySizes) {
        // For a missing size Qt returns a smaller image, which is listed already.
        const QPixmap drawn = image.pixmap(QSize(size, size), 1.0);
        const bool known = std::ranges::any_of(pixmaps, [&](const TrayPixmap& other) {
            return other.width == drawn.width() && other.height == drawn.height();
        });
        if (drawn.isNull() || known) continue;
        pixmaps.append(inNetworkOrder(drawn.toImage().convertToFormat(QImage::Format_ARGB32)));
    }
    return pixmaps;
}

void registerTrayTypes() {
    qDBusRegisterMetaType<TrayPixmap>();
    qDBusRegisterMetaType<TrayPixmaps>();
    qDBusRegisterMetaType<TrayToolTip>();
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayPixmap& pixmap) {
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.argb;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayPixmap& pixmap) {
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.argb;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayToolTip& toolTip) {
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.icon << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayToolTip& toolTip) {
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.icon >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

} // namespace vantle
