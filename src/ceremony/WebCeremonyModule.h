// The interface of the web engine module.
#pragma once

#include "ceremony/WebStage.h"

#include <QtPlugin>

namespace vantle {

class PanelHost;
class Screens;

/// Loaded at the first show with a page, then kept. Main thread.
class WebCeremonyModule {
public:
    virtual ~WebCeremonyModule() = default;

    /// Shows the file `page` on the screen with that frame, as WebStage describes; `screens` and
    /// `host` must outlive the window. Returns null when that is impossible.
    [[nodiscard]] virtual std::unique_ptr<OverlayWindow>
    putUp(const QRect& frame, const Screens& screens, PanelHost& host, const QString& page,
          const QString& script, WebStage::MessageHandler message) = 0;
};

} // namespace vantle

// Increment with each change of the class, so that a module of another build is refused.
Q_DECLARE_INTERFACE(vantle::WebCeremonyModule, "local.vantle.WebCeremonyModule/3")
