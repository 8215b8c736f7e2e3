// The overlay controller on virtual time, over screens and windows of the test.
#pragma once

#include "base/RandomSource.h"
#include "ceremony/FakeStages.h"
#include "ceremony/RippleOverlayController.h"
#include "fakes/FakeReducedMotion.h"
#include "fakes/FakeScreens.h"
#include "fakes/MemoryPreferences.h"

#include <deque>

namespace vantle::tests {

/// The random numbers of the test; 0.5 when they are used up.
class GivenNumbers final : public RandomSource {
public:
    [[nodiscard]] double uniform() override {
        if (numbers.empty()) return 0.5;
        const double next = numbers.front();
        numbers.pop_front();
        return next;
    }
    std::deque<double> numbers;
};

/// A native show on the smallest screen, prepared immediately.
inline std::unique_ptr<CeremonyFrameRenderer> prepareTiny(CeremonyVariant variant) {
    GivenNumbers random;
    return std::make_unique<CeremonyFrameRenderer>(
        CeremonyGridModel::choreograph(variant, QSizeF(24, 24), random));
}

/// Two screens side by side.
inline std::vector<ScreenShape> twoScreens() {
    return {{.frame = QRectF(0, 0, 1440, 900), .available = QRectF(0, 0, 1440, 900)},
            {.frame = QRectF(1440, 0, 1920, 1080), .available = QRectF(1440, 0, 1920, 1080)}};
}

struct CeremonyWorld {
    CeremonyWorld(const Clock& clock, Scheduler& scheduler, SerialQueue& prepQueue)
        : controller({.clock = clock,
                      .scheduler = scheduler,
                      .prepQueue = prepQueue,
                      .preferences = preferences,
                      .reducedMotion = reducedMotion,
                      .stage = stage,
                      .web = web,
                      .random = random,
                      .prepare = [](CeremonyVariant variant, QSizeF, const auto&) {
                          return prepareTiny(variant);
                      }}) {
        screens.shapes = twoScreens();
    }

    fakes::MemoryPreferences preferences;
    fakes::FakeReducedMotion reducedMotion;
    fakes::FakeScreens screens;
    ShownWindows windows;
    FakeStage stage{windows, screens};
    FakeWebStage web{windows, screens};
    GivenNumbers random;
    RippleOverlayController controller;
};

} // namespace vantle::tests
