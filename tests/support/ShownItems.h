// The visible items of a view, found by their accessible names.
#pragma once

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QQuickItem>
#include <QQuickWindow>

namespace vantle::tests {

/// Returns the first visible item that matches, parents before children; null when there is none.
template <typename Fits>
[[nodiscard]] QQuickItem* shownItem(QQuickItem* root, const Fits& fits) {
    if (!root->isVisible()) return nullptr;
    if (fits(*root)) return root;
    for (QQuickItem* child : root->childItems())
        if (QQuickItem* const found = shownItem(child, fits)) return found;
    return nullptr;
}

[[nodiscard]] inline bool showsText(const QQuickWindow& window, const QString& words) {
    return shownItem(window.contentItem(), [&](const QQuickItem& item) {
               return item.property("text").toString() == words;
           }) != nullptr;
}

/// Returns the control with that accessible name.
[[nodiscard]] inline QQuickItem* shownControl(const QQuickWindow& window, const QString& name) {
    return shownItem(window.contentItem(), [&](const QQuickItem& item) {
        return item.property("name").toString() == name &&
               item.metaObject()->indexOfSignal("clicked()") >= 0;
    });
}

/// Presses and releases a key. `typed` is its text.
inline void sendKey(QQuickWindow& window, int code, const QString& typed = {}) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, code, Qt::NoModifier, typed);
        QCoreApplication::sendEvent(&window, &event);
    }
}

/// Sends a pointer event at a position in px of the window.
inline void sendMouse(QQuickWindow& window, QEvent::Type type, QPointF place,
                      Qt::MouseButton button, Qt::MouseButtons held) {
    QMouseEvent event(type, place, window.mapToGlobal(place), button, held, Qt::NoModifier,
                      QPointingDevice::primaryPointingDevice());
    QCoreApplication::sendEvent(&window, &event);
}

} // namespace vantle::tests
