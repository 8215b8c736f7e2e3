// How long the person has not touched keyboard or mouse.
#pragma once

#include <QObject>

#include <optional>

namespace vantle {

/// Main thread, the signal included.
class IdleSource : public QObject {
    Q_OBJECT

public:
    /// Seconds since the last input of this desktop session: keys, modifiers, buttons, motion and
    /// wheel. Sleep of the machine is part of them, although most counters stand still in it. Empty
    /// where the desktop can't tell, or can't tell now; that is neither presence nor absence, and
    /// is never taken for either. One round trip to the display server at the most.
    [[nodiscard]] virtual std::optional<double> secondsSinceLastInput() = 0;

    /// Whether this desktop can tell at all. True also where a single reading is empty.
    [[nodiscard]] virtual bool canTell() const = 0;

Q_SIGNALS:
    void canTellChanged();
};

} // namespace vantle
