// The person's wish for less movement, as the test sets it.
#pragma once

#include "platform/ReducedMotion.h"

namespace vantle::fakes {

class FakeReducedMotion final : public ReducedMotion {
public:
    [[nodiscard]] bool enabled() const override { return isOn; }

    bool isOn = false;
};

} // namespace vantle::fakes
