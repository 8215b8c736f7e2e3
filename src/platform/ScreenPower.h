// The port of the screens' sleep.
#pragma once

#include <QObject>

namespace vantle {

/// Reports when the displays sleep and wake. The backend defines sleep: display power state, screen
/// saver or lock, suspension. Main thread.
class ScreenPower : public QObject {
    Q_OBJECT

public:
    /// True between `slept` and `woke`. Starts as false where unknown.
    [[nodiscard]] virtual bool asleep() const = 0;

Q_SIGNALS:
    void slept();
    void woke();
};

} // namespace vantle
