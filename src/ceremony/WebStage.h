// How the ceremony's pages come over the screens.
#pragma once

#include "platform/OverlayStage.h"

#include <QJsonValue>
#include <QRect>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace vantle {

/// Puts web pages over screens, where there is a page and something that can show it. The bodies
/// here are those of a desktop without. Main thread.
class WebStage {
public:
    virtual ~WebStage() = default;

    /// Whether there is a page and all that it takes. Asked at each show.
    [[nodiscard]] virtual bool hasPage() { return false; }

    /// As OverlayStage has them.
    [[nodiscard]] virtual std::vector<QRect> frames() const { return {}; }

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
