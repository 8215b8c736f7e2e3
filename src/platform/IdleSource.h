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

    /// The same, without calls and videos where those count as input.
    [[nodiscard]] virtual std::optional<double> secondsSinceKeyOrPointer() {
        return secondsSinceLastInput();
    }

    /// Whether an application keeps the session awake, as of the last reading. Empty where this
    /// source does not show that.
    [[nodiscard]] virtual std::optional<bool> isInhibited() const { return std::nullopt; }

Q_SIGNALS:
    void canTellChanged();
};

} // namespace vantle
