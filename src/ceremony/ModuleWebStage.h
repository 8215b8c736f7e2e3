// The loader of the module that shows ceremony pages.
#pragma once

#include "ceremony/WebStage.h"

#include <functional>

namespace vantle {

class PanelHost;
class Screens;
class WebCeremonyModule;

/// Loads the module only for an existing page: the web engine takes a hundred megabytes and never
/// releases them. A module that fails to load counts as missing for this run. So does every module
/// unless AA_ShareOpenGLContexts was set before the application object was constructed: the engine
/// would crash. Where the desktop has no input regions the windows would take presses, so there is
/// no page either. Main thread.
class ModuleWebStage final : public WebStage {
public:
    /// `modulePath` is the module's file; `findPage` returns the page's, empty when there is none.
    /// `screens` and `host` must outlive this object.
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
