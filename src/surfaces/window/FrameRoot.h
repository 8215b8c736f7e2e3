// The root item of a window's frame.
#pragma once

#include "surfaces/window/WindowShell.h"

#include <QQuickItem>
#include <QString>
#include <QUrl>

#include <utility>

namespace vantle {

/// The interface between frame and window. Main thread.
class FrameRoot : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    // Set by the window before the frame is complete.
    Q_PROPERTY(vantle::WindowShell* shell MEMBER shell CONSTANT)
    /// For the strip; empty where the view has its own title.
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(bool resizable MEMBER resizable CONSTANT)
    /// Of the view, in px; 0 means its implicit height.
    Q_PROPERTY(int minimumHeight MEMBER minimumHeight CONSTANT)
    Q_PROPERTY(QUrl view MEMBER view CONSTANT)
    Q_PROPERTY(QObject* model MEMBER model CONSTANT)
    // Set by the window at any time.
    /// Whether the corners may be transparent.
    Q_PROPERTY(bool rounded READ isRounded NOTIFY roundedChanged)
    /// Whether the window manager minimises windows.
    Q_PROPERTY(bool minimisable READ isMinimisable NOTIFY minimisableChanged)
    /// Set by the frame: whether it shows the view.
    Q_PROPERTY(bool ready MEMBER m_ready NOTIFY readyChanged)

public:
    using QQuickItem::QQuickItem;

    WindowShell* shell = nullptr;
    QString title;
    bool resizable = false;
    int minimumHeight = 0;
    QUrl view;
    QObject* model = nullptr;

    [[nodiscard]] bool isRounded() const { return m_rounded; }
    void setRounded(bool rounded) {
        if (std::exchange(m_rounded, rounded) != rounded) Q_EMIT roundedChanged();
    }
    [[nodiscard]] bool isMinimisable() const { return m_minimisable; }
    void setMinimisable(bool minimisable) {
        if (std::exchange(m_minimisable, minimisable) != minimisable) Q_EMIT minimisableChanged();
    }
    [[nodiscard]] bool isReady() const { return m_ready; }

Q_SIGNALS:
    void roundedChanged();
    void minimisableChanged();
    void readyChanged();

private:
    bool m_rounded = true;
    bool m_minimisable = true;
    bool m_ready = false;
};

} // namespace vantle
