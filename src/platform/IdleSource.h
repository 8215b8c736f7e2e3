// The port of the idle time.
#pragma once

#include <QObject>

#include <optional>

namespace vantle {

/// Main thread, the signal included.
class IdleSource : public QObject {
    Q_OBJECT

public:
    /// Seconds since the last input in this desktop session: keys, buttons, motion and wheel.
    /// Includes sleep of the machine, although most counters stop during it. Empty when unknown,
    /// which callers must treat as neither presence nor absence. At most one round trip to the
    /// display server.
    [[nodiscard]] virtual std::optional<double> secondsSinceLastInput() = 0;

    /// Whether this desktop can report the idle time. True even where one reading is empty.
    [[nodiscard]] virtual bool canTell() const = 0;

Q_SIGNALS:
    void canTellChanged();
};

} // namespace vantle
