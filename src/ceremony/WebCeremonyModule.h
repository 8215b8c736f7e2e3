// What the module with the web engine offers the program, which is built without one.
#pragma once

#include "ceremony/WebStage.h"

#include <QtPlugin>

namespace vantle {

class PanelHost;
class Screens;

/// Loaded at the first show that has a page, and kept. Main thread.
class WebCeremonyModule {
public:
    virtual ~WebCeremonyModule() = default;

    /// Loads the file `page` over the screen with that frame, as WebStage says; `screens` and
    /// `host` must outlive the window. Null when that can't be done here.
    [[nodiscard]] virtual std::unique_ptr<OverlayWindow>
    putUp(const QRect& frame, const Screens& screens, PanelHost& host, const QString& page,
          const QString& script, WebStage::MessageHandler message) = 0;
};

} // namespace vantle

// Another number whenever the class changes, so that a module of another build is left alone.
Q_DECLARE_INTERFACE(vantle::WebCeremonyModule, "local.vantle.WebCeremonyModule/3")
