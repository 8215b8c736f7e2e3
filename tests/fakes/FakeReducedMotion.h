// The reduced motion setting, set by the test.
#pragma once

#include "platform/ReducedMotion.h"

namespace vantle::fakes {

class FakeReducedMotion final : public ReducedMotion {
public:
    [[nodiscard]] bool enabled() const override { return isOn; }

    /// The user changes the setting at run time.
    void set(bool on) {
        isOn = on;
        Q_EMIT changed();
    }

    bool isOn = false; ///< setting it directly emits no signal
};

} // namespace vantle::fakes
