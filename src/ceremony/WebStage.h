// The display of ceremony pages over screens.
#pragma once

#include "platform/OverlayStage.h"

#include <QJsonValue>
#include <QRect>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace vantle {

/// The bodies here are those of a desktop that cannot show pages. Main thread.
class WebStage {
public:
    virtual ~WebStage() = default;

    /// Whether a page and everything it needs exist. Checked for each show.
    [[nodiscard]] virtual bool hasPage() { return false; }

    /// The screens, as in OverlayStage.
    [[nodiscard]] virtual std::vector<QRect> frames() const { return {}; }

    /// Called with the body of each message that the page posts, valid or not.
    using MessageHandler = std::function<void(const QJsonValue& body)>;

    /// Shows the page on the screen with that frame; `script` runs in it before the page's own
    /// scripts. A page that fails to load, or crashes, sends no messages. Never null.
    [[nodiscard]] virtual std::unique_ptr<OverlayWindow>
    putUp(const QRect& /*frame*/, const QString& /*script*/, MessageHandler) {
        return std::make_unique<OverlayWindow>();
    }
};

} // namespace vantle
