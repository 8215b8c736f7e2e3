// How the ceremony's views and pages come over the screens.
#pragma once

#include "platform/OverlayView.h"

#include <QJsonValue>
#include <QRect>
#include <QString>

#include <functional>
#include <memory>

namespace vantle {

/// Something that is over a screen until it is destroyed: without borders, see-through, deaf to
/// pointer and keyboard, above all other windows on every workspace, in no task bar. It vanishes by
/// itself when its screen goes away or its show is over. Main thread. It may be destroyed at any
/// time, also while it reports something.
class OverlayWindow {
public:
    virtual ~OverlayWindow() = default;
};

/// Puts views over screens. Main thread.
class OverlayStage {
public:
    virtual ~OverlayStage() = default;

    /// Shows the view over the screen with that frame, and drives it. Never null: where the screen
    /// is gone, or the desktop can't show such a window, there is just nothing to see.
    [[nodiscard]] virtual std::unique_ptr<OverlayWindow>
    putUp(const QRect& frame, std::unique_ptr<OverlayView> view) = 0;
};

/// Puts web pages over screens, where there is a page and something that can show it. The bodies
/// here are those of a desktop without. Main thread.
class WebStage {
public:
    virtual ~WebStage() = default;

    /// Whether there is a page and all that it takes. Asked at each show.
    [[nodiscard]] virtual bool hasPage() { return false; }

    /// Called with the body of each message that the page posts, whatever it is.
    using MessageHandler = std::function<void(const QJsonValue& body)>;

    /// Loads the page over the screen with that frame; `script` runs in it before any script of its
    /// own. A page that fails to load, or crashes, just sends nothing. Never null.
    [[nodiscard]] virtual std::unique_ptr<OverlayWindow>
    putUp(const QRect& /*frame*/, const QString& /*script*/, MessageHandler) {
        return std::make_unique<OverlayWindow>();
    }
};

} // namespace vantle
