// The overlays of the first available stage.
#pragma once

#include "platform/OverlayStage.h"

#include <memory>
#include <utility>
#include <vector>

namespace vantle {

/// The stage can change between two calls; a frame of one stage need not be a screen of the other.
/// Main thread.
class FirstOverlayStage final : public OverlayStage {
public:
    /// The best first.
    explicit FirstOverlayStage(std::vector<std::unique_ptr<OverlayStage>> stages)
        : m_stages(std::move(stages)) {}

    [[nodiscard]] bool isAvailable() const override { return first() != nullptr; }
    [[nodiscard]] std::vector<QRect> frames() const override {
        const OverlayStage* const stage = first();
        return stage != nullptr ? stage->frames() : std::vector<QRect>{};
    }
    [[nodiscard]] std::unique_ptr<OverlayWindow> putUp(const QRect& frame,
                                                       std::unique_ptr<OverlayView> view) override {
        OverlayStage* const stage = first();
        return stage != nullptr ? stage->putUp(frame, std::move(view))
                                : std::make_unique<OverlayWindow>();
    }

private:
    [[nodiscard]] OverlayStage* first() const {
        for (const auto& stage : m_stages)
            if (stage->isAvailable()) return stage.get();
        return nullptr;
    }

    const std::vector<std::unique_ptr<OverlayStage>> m_stages;
};

} // namespace vantle
