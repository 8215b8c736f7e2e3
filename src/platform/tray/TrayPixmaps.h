// The D-Bus types of tray images.
//
// GUI thread.
#pragma once

#include <QByteArray>
#include <QIcon>
#include <QList>
#include <QMetaType>
#include <QString>

#include <array>

class QDBusArgument;

namespace vantle {

/// The sizes that trays use, in pixels.
inline constexpr std::array kTraySizes{16, 18, 22, 24, 32, 36, 48};

/// An image in one size: rows from the top, ARGB bytes, not premultiplied.
struct TrayPixmap {
    int width = 0;
    int height = 0;
    QByteArray argb;
    friend bool operator==(const TrayPixmap&, const TrayPixmap&) = default;
};
using TrayPixmaps = QList<TrayPixmap>;

/// The tool tip. Its text may contain markup, so plain text must be escaped.
struct TrayToolTip {
    QString iconName;
    TrayPixmaps icon;
    QString title;
    QString text;
};

/// Returns the image in each tray size that it has, smallest first.
[[nodiscard]] TrayPixmaps trayPixmaps(const QIcon& image);

/// Registers the types above with D-Bus. Repeatable.
void registerTrayTypes();

QDBusArgument& operator<<(QDBusArgument& argument, const TrayPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayToolTip& toolTip);

} // namespace vantle

Q_DECLARE_METATYPE(vantle::TrayPixmap)
Q_DECLARE_METATYPE(vantle::TrayToolTip)
