// The signals of a source of screen sleep.
#pragma once

#include "platform/ScreenPower.h"

namespace vantle::tests {

/// Counts them; the source must outlive it.
struct ToldPower {
    explicit ToldPower(ScreenPower& power) {
        QObject::connect(&power, &ScreenPower::slept, [this] { ++slept; });
        QObject::connect(&power, &ScreenPower::woke, [this] { ++woke; });
    }
    int slept = 0;
    int woke = 0;
};

} // namespace vantle::tests
