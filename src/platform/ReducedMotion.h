// Whether the user asked the desktop for less movement.
#pragma once

#include <QObject>

namespace vantle {

/// Main thread, the signal included.
class ReducedMotion : public QObject {
    Q_OBJECT

public:
    /// The setting as last heard; false where the desktop has none. Never blocks.
    [[nodiscard]] virtual bool enabled() const = 0;

Q_SIGNALS:
    /// enabled() changed.
    void changed();
};

} // namespace vantle
