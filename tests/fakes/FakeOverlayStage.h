// A stage over screens of the test, where nothing is painted.
#pragma once

#include "platform/OverlayStage.h"

#include <QList>

#include <memory>
#include <utility>
#include <vector>

namespace vantle::fakes {

class FakeOverlayStage final : public OverlayStage {
public:
    [[nodiscard]] bool isAvailable() const override { return available; }
    [[nodiscard]] std::vector<QRect> frames() const override { return screens; }
    [[nodiscard]] std::unique_ptr<OverlayWindow> putUp(const QRect& frame,
                                                       std::unique_ptr<OverlayView> view) override {
        return std::make_unique<Window>(*this, frame, std::move(view));
    }

    bool available = true;
    std::vector<QRect> screens{QRect(0, 0, 1440, 900)};
    QList<QRect> shown; ///< in the order in which they were put up, as long as somebody keeps them

private:
    struct Window final : OverlayWindow {
        Window(FakeOverlayStage& owner, const QRect& over, std::unique_ptr<OverlayView> shownView)
            : stage(owner)
            , frame(over)
            , view(std::move(shownView)) {
            stage.shown << frame;
        }
        ~Window() override { stage.shown.removeOne(frame); }
        Window(const Window&) = delete;
        Window& operator=(const Window&) = delete;

        FakeOverlayStage& stage;
        const QRect frame;
        const std::unique_ptr<OverlayView> view;
    };
};

} // namespace vantle::fakes
