// The port of the reduced motion setting.
#pragma once

#include <QObject>

namespace vantle {

/// Main thread, the signal included.
class ReducedMotion : public QObject {
    Q_OBJECT

public:
    /// The last known setting; false where the desktop has none. Does not block.
    [[nodiscard]] virtual bool enabled() const = 0;

Q_SIGNALS:
    /// enabled() changed.
    void changed();
};

} // namespace vantle
