// How long the person has not touched keyboard or mouse.
#pragma once

#include <optional>

namespace vantle {

class IdleSource {
public:
    virtual ~IdleSource() = default;

    /// Seconds since the last input of this desktop session: keys, modifiers, buttons, motion and
    /// wheel. Empty where the desktop can't tell; that is neither presence nor absence, and is
    /// never taken for either. Main thread; one round trip to the display server at the most.
    [[nodiscard]] virtual std::optional<double> secondsSinceLastInput() = 0;
};

} // namespace vantle
