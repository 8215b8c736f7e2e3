#include "platform/tray/XEmbedTrayItem.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QImage>
#include <QScreen>

namespace vantle {

XEmbedTrayItem::XEmbedTrayItem(const QIcon& image, const QString& toolTip) {
    m_icon.setIcon(image);
    m_icon.setToolTip(toolTip);
    connect(&m_icon, &QSystemTrayIcon::activated, this, [this](auto reason) {
        // The second click of a double click is ignored, since it would undo the first.
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::Context)
            Q_EMIT clicked(QCursor::pos());
    });
    // Qt does not report that a tray comes or goes; the window that it creates, shows and hides for
    // the icon is the only sign. Unmapping by the server, such as while a tray embeds it, does not
    // count.
    QCoreApplication::instance()->installEventFilter(this);
    m_icon.show();
}

XEmbedTrayItem::~XEmbedTrayItem() {
    // The icon's window hides during this destructor.
    QCoreApplication::instance()->removeEventFilter(this);
}

bool XEmbedTrayItem::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Paint:
        if (watched->objectName() == QLatin1String("QSystemTrayIconSys")) followWindow(*event);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void XEmbedTrayItem::followWindow(const QEvent& event) {
    if (event.type() == QEvent::Paint) {
        if (!m_groundIsStale) return;
        m_groundIsStale = false;
        QMetaObject::invokeMethod(this, &XEmbedTrayItem::lookAtGround, Qt::QueuedConnection);
        return;
    }
    m_groundIsStale = true;
    if (event.type() == QEvent::Move) {
        if (!m_shown) return;
        m_placed = true;
        QMetaObject::invokeMethod(this, &XEmbedTrayItem::placeChanged, Qt::QueuedConnection);
        return;
    }
    if (event.spontaneous()) return;
    m_shown = event.type() == QEvent::Show;
    m_placed = false;
    // Deferred, since Qt may hide the window only to recreate it for the same tray.
    QMetaObject::invokeMethod(this, &XEmbedTrayItem::tellIfChanged, Qt::QueuedConnection);
}

void XEmbedTrayItem::lookAtGround() {
    // XEmbed trays do not report their colour, so it is read from the screen: the image leaves the
    // corner free.
    const QPoint corner = geometry().topLeft();
    QScreen* screen = QGuiApplication::screenAt(corner);
    if (!m_placed || screen == nullptr) {
        m_groundIsStale = true; // embedded, but not yet at its place
        return;
    }
    const QPoint place = corner - screen->geometry().topLeft();
    const QImage seen = screen->grabWindow(0, place.x(), place.y(), 1, 1).toImage();
    if (seen.isNull() || m_ground == seen.pixelColor(0, 0)) return;
    m_ground = seen.pixelColor(0, 0);
    Q_EMIT groundChanged();
}

void XEmbedTrayItem::tellIfChanged() {
    if (m_shown == m_toldShown) return;
    m_toldShown = m_shown;
    Q_EMIT shownChanged();
}

} // namespace vantle
