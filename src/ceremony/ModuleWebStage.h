// Pages shown by the module with the web engine, as far as both are there.
#pragma once

#include "ceremony/WebStage.h"

#include <functional>

namespace vantle {

class PanelHost;
class Screens;
class WebCeremonyModule;

/// The module is loaded when there is a page to show, and not before: the engine takes a hundred
/// megabytes, and gives nothing back. One that can't be loaded counts as missing for this run; so
/// does any, unless AA_ShareOpenGLContexts was set before the application object was made: the
/// engine would crash. Its windows take the presses over them where the desktop has no input
/// regions: there it has no page either.
class ModuleWebStage final : public WebStage {
public:
    /// `modulePath` is the module's file; `findPage` gives the page's, empty where there is none.
    /// `screens` and `host` must outlive this.
    ModuleWebStage(QString modulePath, std::function<QString()> findPage, const Screens& screens,
                   PanelHost& host);

    [[nodiscard]] bool hasPage() override;
    [[nodiscard]] std::vector<QRect> frames() const override;
    [[nodiscard]] std::unique_ptr<OverlayWindow> putUp(const QRect& frame, const QString& script,
                                                       MessageHandler message) override;

private:
    const QString m_modulePath;
    const std::function<QString()> m_findPage;
    const Screens& m_screens;
    PanelHost& m_host;
    bool m_wasTried = false;
    WebCeremonyModule* m_module = nullptr; ///< owned by the plugin system
};

} // namespace vantle
