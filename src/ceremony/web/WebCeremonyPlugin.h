// The entry point of the module.
//
// Main thread.
#pragma once

#include "ceremony/WebCeremonyModule.h"

#include <QObject>

namespace vantle {

class WebCeremonyPlugin final : public QObject, public WebCeremonyModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "local.vantle.WebCeremonyModule/3")
    Q_INTERFACES(vantle::WebCeremonyModule)

public:
    WebCeremonyPlugin();

    [[nodiscard]] std::unique_ptr<OverlayWindow> putUp(const QRect& frame, const Screens& screens,
                                                       PanelHost& host, const QString& page,
                                                       const QString& script,
                                                       WebStage::MessageHandler message) override;
};

} // namespace vantle
