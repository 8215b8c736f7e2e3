#include "platform/desktop/XEmbedTrayItem.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>

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
    const bool shows = event->type() == QEvent::Show;
    if ((shows || event->type() == QEvent::Hide) && !event->spontaneous() &&
        watched->objectName() == QLatin1String("QSystemTrayIconSys")) {
        m_shown = shows;
        // Later, since a window may be hidden only to be made anew for the same tray.
        QMetaObject::invokeMethod(this, &XEmbedTrayItem::tellIfChanged, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void XEmbedTrayItem::tellIfChanged() {
    if (m_shown == m_toldShown) return;
    m_toldShown = m_shown;
    Q_EMIT shownChanged();
}

} // namespace vantle
