// What the module with the web engine offers the program, which is built without one.
#pragma once

#include "platform/OverlayStage.h"

#include <QtPlugin>

class QScreen;

namespace vantle {

class PanelHost;

/// Loaded at the first show that has a page, and kept. Main thread.
class WebCeremonyModule {
public:
    virtual ~WebCeremonyModule() = default;

    /// Loads the file `page` over the screen, as WebStage says; `host` must outlive the
    /// window. Null when that can't be done here.
    [[nodiscard]] virtual std::unique_ptr<OverlayWindow>
    putUp(QScreen& screen, PanelHost& host, const QString& page, const QString& script,
          WebStage::MessageHandler message) = 0;
};

} // namespace vantle

// Another number whenever the class changes, so that a module of another build is left alone.
Q_DECLARE_INTERFACE(vantle::WebCeremonyModule, "local.vantle.WebCeremonyModule/2")
