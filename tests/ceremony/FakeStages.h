// Overlay windows and pages without a display.
#pragma once

#include "ceremony/CeremonyLayerView.h"
#include "ceremony/CollapseRippleView.h"
#include "ceremony/ReducedMotionFadeView.h"
#include "ceremony/WebStage.h"
#include "ceremony/show/CeremonyFrameRenderer.h"
#include "platform/OverlayStage.h"
#include "platform/WholeScreen.h"

#include <QList>

#include <algorithm>
#include <optional>

namespace vantle::tests {

/// The content and place of an open window.
struct ShownWindow {
    enum class Kind { Fade, Collapse, Native, Web };
    Kind kind = Kind::Web;
    QRect frame;
    std::optional<CeremonyVariant> variant; ///< of a native show
    QString script;                         ///< of a page
    Date start{};                           ///< of a view
};

/// Windows in the order of creation, while they have an owner.
class ShownWindows {
public:
    std::unique_ptr<OverlayWindow> add(ShownWindow window) {
        return std::make_unique<Place>(*this, std::move(window));
    }
    [[nodiscard]] QList<ShownWindow> all() const {
        QList<ShownWindow> windows;
        for (const Place* place : m_places)
            windows << place->window;
        return windows;
    }
    [[nodiscard]] qsizetype count() const { return m_places.size(); }

private:
    struct Place final : OverlayWindow {
        Place(ShownWindows& owner, ShownWindow shown) : window(std::move(shown)), places(owner) {
            places.m_places << this;
        }
        ~Place() override { places.m_places.removeOne(this); }
        ShownWindow window;
        ShownWindows& places;
    };
    QList<Place*> m_places;
};

class FakeStage final : public OverlayStage {
public:
    FakeStage(ShownWindows& windows, const Screens& screens)
        : m_windows(windows)
        , m_screens(screens) {}

    [[nodiscard]] bool isAvailable() const override { return available; }
    [[nodiscard]] std::vector<QRect> frames() const override {
        return wholescreen::frames(m_screens);
    }

    std::unique_ptr<OverlayWindow> putUp(const QRect& frame,
                                         std::unique_ptr<OverlayView> view) override {
        ShownWindow window;
        window.frame = frame;
        window.start = view->start();
        if (const auto* show = dynamic_cast<const CeremonyLayerView*>(view.get())) {
            window.kind = ShownWindow::Kind::Native;
            window.variant = show->renderer().model().variant;
        } else if (dynamic_cast<const CollapseRippleView*>(view.get())) {
            window.kind = ShownWindow::Kind::Collapse;
        } else if (dynamic_cast<const ReducedMotionFadeView*>(view.get())) {
            window.kind = ShownWindow::Kind::Fade;
        }
        return m_windows.add(std::move(window));
    }

    bool available = true;

private:
    ShownWindows& m_windows;
    const Screens& m_screens;
};

/// Keeps the handlers of destroyed pages, whose messages may still be pending.
class FakeWebStage final : public WebStage {
public:
    FakeWebStage(ShownWindows& windows, const Screens& screens)
        : m_windows(windows)
        , m_screens(screens) {}

    [[nodiscard]] bool hasPage() override { return pageExists; }
    [[nodiscard]] std::vector<QRect> frames() const override {
        return wholescreen::frames(m_screens);
    }
    std::unique_ptr<OverlayWindow> putUp(const QRect& frame, const QString& script,
                                         MessageHandler message) override {
        pages << std::move(message);
        ShownWindow window;
        window.frame = frame;
        window.script = script;
        return m_windows.add(std::move(window));
    }

    bool pageExists = false;
    QList<MessageHandler> pages; ///< of all shows so far

private:
    ShownWindows& m_windows;
    const Screens& m_screens;
};

} // namespace vantle::tests
