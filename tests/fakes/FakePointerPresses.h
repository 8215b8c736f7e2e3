// The pointer presses of the test.
#pragma once

#include "platform/PointerPresses.h"

namespace vantle::fakes {

class FakePointerPresses final : public PointerPresses {
public:
    void watch() override { watched = true; }
    void ignore() override { watched = false; }

    /// The user presses there; reported only while watched.
    void press(QPoint place) {
        if (watched) Q_EMIT pressed(place);
    }

    bool watched = false;
};

} // namespace vantle::fakes
