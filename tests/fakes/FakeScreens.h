// The screens that the test arranges.
#pragma once

#include "platform/Screens.h"

#include <utility>

namespace vantle::fakes {

class FakeScreens final : public Screens {
public:
    [[nodiscard]] std::vector<ScreenShape> all() const override { return shapes; }
    [[nodiscard]] std::vector<ScreenShape> inUseFirst() const override {
        return inUse < shapes.size() ? startingWith(shapes[inUse].frame, shapes) : shapes;
    }

    /// Changes the arrangement and emits the signal.
    void arrange(std::vector<ScreenShape> other) {
        shapes = std::move(other);
        Q_EMIT changed();
    }

    std::size_t inUse = 0; ///< index of the screen in use

    /// One plain screen with a bar of 28 px at its top.
    std::vector<ScreenShape> shapes{
        {.frame = QRectF(0, 0, 1440, 900), .available = QRectF(0, 28, 1440, 872)}};
};

} // namespace vantle::fakes
