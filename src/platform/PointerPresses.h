// Presses of the pointer wherever they happen, for what closes on a click elsewhere.
#pragma once

#include <QObject>
#include <QPoint>

namespace vantle {

/// Tells of presses of the left and the right button in the windows of any application; the press
/// itself goes where it would have gone anyway. A desktop that does not let that be seen tells only
/// of some, or of none. Main thread.
class PointerPresses : public QObject {
    Q_OBJECT

public:
    /// Tells from now on.
    virtual void watch() {}
    /// Tells nothing any more. Costs nothing while nobody watches.
    virtual void ignore() {}

Q_SIGNALS:
    /// With the place of the pointer, in px of the desktop.
    void pressed(QPoint place);
};

} // namespace vantle
