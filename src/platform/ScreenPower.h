// Whether the person can see the screens at all.
#pragma once

#include <QObject>

namespace vantle {

/// Tells when the displays go to sleep and when they come back. What counts as sleep is the
/// backend's: the display power state, the screen saver or lock, a suspended machine. Main thread.
class ScreenPower : public QObject {
    Q_OBJECT

public:
    /// True between `slept` and `woke`. Starts false where the desktop can't tell.
    [[nodiscard]] virtual bool asleep() const = 0;

Q_SIGNALS:
    void slept();
    void woke();
};

} // namespace vantle
