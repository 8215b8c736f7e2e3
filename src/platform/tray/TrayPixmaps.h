// An image as it goes over D-Bus to the programs that draw trays.
#pragma once

#include <QByteArray>
#include <QIcon>
#include <QList>
#include <QMetaType>
#include <QString>

#include <array>

class QDBusArgument;

namespace vantle {

/// The sizes that trays ask for, in pixels.
inline constexpr std::array kTraySizes{16, 18, 22, 24, 32, 36, 48};

/// One size of an image: rows from the top, four bytes a pixel, alpha first, not premultiplied.
struct TrayPixmap {
    int width = 0;
    int height = 0;
    QByteArray argb;
    friend bool operator==(const TrayPixmap&, const TrayPixmap&) = default;
};
using TrayPixmaps = QList<TrayPixmap>;

/// The tool tip as it goes over D-Bus. The text may have markup, so plain text must be escaped.
struct TrayToolTip {
    QString iconName;
    TrayPixmaps icon;
    QString title;
    QString text;
};

/// The image in each of the sizes that trays ask for and that it has, smallest first.
[[nodiscard]] TrayPixmaps trayPixmaps(const QIcon& image);

/// Makes the types above known to D-Bus. May be called again.
void registerTrayTypes();

QDBusArgument& operator<<(QDBusArgument& argument, const TrayPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayToolTip& toolTip);

} // namespace vantle

Q_DECLARE_METATYPE(vantle::TrayPixmap)
Q_DECLARE_METATYPE(vantle::TrayToolTip)
