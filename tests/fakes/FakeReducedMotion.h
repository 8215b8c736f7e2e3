// The user's wish for less movement, as the test sets it.
#pragma once

#include "platform/ReducedMotion.h"

namespace vantle::fakes {

class FakeReducedMotion final : public ReducedMotion {
public:
    [[nodiscard]] bool enabled() const override { return isOn; }

    /// The user changes the setting while the program runs.
    void set(bool on) {
        isOn = on;
        Q_EMIT changed();
    }

    bool isOn = false; ///< a change by this way is told to no one
};

} // namespace vantle::fakes
