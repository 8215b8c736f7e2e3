// The port of pointer presses anywhere, for surfaces that close on them.
#pragma once

#include <QObject>
#include <QPoint>

namespace vantle {

/// Reports presses of the left and right button in all applications' windows, and delivers them as
/// usual. A desktop may report only some, or none. Main thread.
class PointerPresses : public QObject {
    Q_OBJECT

public:
    /// Starts reporting.
    virtual void watch() {}
    /// Stops reporting; costs nothing then.
    virtual void ignore() {}

Q_SIGNALS:
    /// The position is in px of the desktop.
    void pressed(QPoint place);
};

} // namespace vantle
