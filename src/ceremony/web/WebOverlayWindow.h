// One page over one screen.
#pragma once

#include "ceremony/WebStage.h"

#include <QQuickView>

namespace vantle {

class PanelHost;
class Screens;

/// Main thread. It stays up until it is destroyed, unless its screen goes away or the page crashes:
/// then it is hidden.
class WebOverlayWindow final : public QQuickView {
    Q_OBJECT

public:
    /// Over the screen with that frame. `screens` and `host` must outlive this.
    WebOverlayWindow(const QRect& frame, const Screens& screens, PanelHost& host,
                     const QString& page, const QString& script, WebStage::MessageHandler message);

private:
    void receive(const QString& body);

    const WebStage::MessageHandler m_message;
};

} // namespace vantle
