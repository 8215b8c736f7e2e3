// An overlay stage that paints nothing.
#pragma once

#include "platform/OverlayStage.h"

#include <QList>

#include <algorithm>
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
        if (std::ranges::find(screens, frame) == screens.end())
            return std::make_unique<OverlayWindow>();
        return std::make_unique<Window>(*this, frame, std::move(view));
    }

    void unplug(const QRect& frame) {
        std::erase(screens, frame);
        for (Window* window : m_windows)
            if (window->frame == frame) window->view.reset();
    }
    /// Ends all views.
    void finish() {
        for (Window* window : m_windows)
            window->view.reset();
    }

    /// The visible overlays, in the order of putUp().
    [[nodiscard]] QList<QRect> shown() const {
        QList<QRect> frames;
        for (const Window* window : m_windows)
            if (window->view) frames << window->frame;
        return frames;
    }

    bool available = true;
    std::vector<QRect> screens{QRect(0, 0, 1440, 900)};

private:
    struct Window final : OverlayWindow {
        Window(FakeOverlayStage& owner, const QRect& over, std::unique_ptr<OverlayView> shownView)
            : stage(owner)
            , frame(over)
            , view(std::move(shownView)) {
            stage.m_windows << this;
        }
        ~Window() override { stage.m_windows.removeOne(this); }
        Window(const Window&) = delete;
        Window& operator=(const Window&) = delete;

        FakeOverlayStage& stage;
        const QRect frame;
        std::unique_ptr<OverlayView> view;
    };

    QList<Window*> m_windows;
};

} // namespace vantle::fakes
