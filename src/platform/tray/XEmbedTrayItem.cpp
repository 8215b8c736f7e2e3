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
        // The second click of a double click is none: it would undo what the first one did.
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::Context)
            Q_EMIT clicked(QCursor::pos());
    });
    // The toolkit does not tell when a tray comes or goes; it makes, shows and hides a window for
    // the icon, which is what can be seen of it. What the server does to that window, such as
    // unmapping it for a moment while a tray takes it in, does not count.
    QCoreApplication::instance()->installEventFilter(this);
    m_icon.show();
}

XEmbedTrayItem::~XEmbedTrayItem() {
    // The icon's window hides while this is half gone.
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
    // Later, since a window may be hidden only to be made anew for the same tray.
    QMetaObject::invokeMethod(this, &XEmbedTrayItem::tellIfChanged, Qt::QueuedConnection);
}

void XEmbedTrayItem::lookAtGround() {
    // No tray says what colour it has, so the screen is asked: the image leaves the corner free.
    const QPoint corner = geometry().topLeft();
    QScreen* screen = QGuiApplication::screenAt(corner);
    if (!m_placed || screen == nullptr) {
        m_groundIsStale = true; // docked, and not yet at its place
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
