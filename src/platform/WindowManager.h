// What the desktop's window manager does with the program's windows.
#pragma once

#include <QObject>
#include <QRect>
#include <QWindow>

namespace vantle {

/// The bodies here are those of a desktop of which nothing more is known. Main thread.
class WindowManager : public QObject {
    Q_OBJECT

public:
    /// Whether a minimised window leaves the screen and the user can fetch it back.
    [[nodiscard]] virtual bool canMinimise() const { return true; }

    /// Asks for that frame of a window, shown or not, in px of the desktop. The desktop may give it
    /// another one; where it places windows itself, no more than the size is asked for.
    virtual void place(QWindow& window, const QRect& frame) { window.setGeometry(frame); }

    /// Shows the window where the user is: on the workspace in use, no longer minimised, above the
    /// other windows and with the keyboard. The desktop follows a moment later.
    virtual void bringToUser(QWindow& window) {
        window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
        window.show();
        window.raise();
        window.requestActivate();
    }

Q_SIGNALS:
    /// canMinimise() changed: another window manager has taken over, or the last one has ended.
    void changed();
};

} // namespace vantle
