#include "surfaces/kit/controls/KitControl.h"

namespace vantle {

KitControl::KitControl(QQuickItem* parent) : QQuickItem(parent) {
    setActiveFocusOnTab(true);
    connect(this, &QQuickItem::activeFocusChanged, this, &KitControl::publish);
}

void KitControl::forgetKeyboard() {
    m_byKeyboard = false;
    publish();
}

void KitControl::focusInEvent(QFocusEvent* event) {
    switch (event->reason()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        m_byKeyboard = true;
        break;
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        break; // focus returned from another window: unchanged
    default:
        m_byKeyboard = false;
    }
    QQuickItem::focusInEvent(event);
    publish();
}

void KitControl::focusOutEvent(QFocusEvent* event) {
    QQuickItem::focusOutEvent(event);
    publish();
}

void KitControl::publish() {
    if (m_published == keyboardFocus()) return;
    m_published = keyboardFocus();
    Q_EMIT keyboardFocusChanged();
}

} // namespace vantle
