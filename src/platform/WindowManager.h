// The port of the window manager.
#pragma once

#include <QObject>
#include <QRect>
#include <QWindow>

namespace vantle {

/// The bodies here are those of an unknown window manager. Main thread.
class WindowManager : public QObject {
    Q_OBJECT

public:
    /// Whether a minimised window disappears and the user can restore it.
    [[nodiscard]] virtual bool canMinimise() const { return true; }

    /// Requests that frame for a window, shown or not, in px of the desktop. The desktop may choose
    /// another one; where it places windows itself, only the size is requested.
    virtual void place(QWindow& window, const QRect& frame) { window.setGeometry(frame); }

    /// Shows the window to the user: on the current workspace, not minimised, raised, with the
    /// keyboard. The desktop follows a moment later.
    virtual void bringToUser(QWindow& window) {
        window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
        window.show();
        window.raise();
        window.requestActivate();
    }

Q_SIGNALS:
    /// canMinimise() changed with the window manager.
    void changed();
};

} // namespace vantle
