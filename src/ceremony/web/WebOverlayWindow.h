// The window of one page on one screen.
#pragma once

#include "ceremony/WebStage.h"

#include <QQuickView>

namespace vantle {

class PanelHost;
class Screens;

/// Visible until destroyed, but hidden when its screen goes away or the page crashes. Main thread.
class WebOverlayWindow final : public QQuickView {
    Q_OBJECT

public:
    /// Covers the screen with that frame. `screens` and `host` must outlive it.
    WebOverlayWindow(const QRect& frame, const Screens& screens, PanelHost& host,
                     const QString& page, const QString& script, WebStage::MessageHandler message);

private:
    void receive(const QString& body);

    const WebStage::MessageHandler m_message;
};

} // namespace vantle
