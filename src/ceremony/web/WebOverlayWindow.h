// One page over one screen.
#pragma once

#include "platform/OverlayStage.h"

#include <QQuickView>

namespace vantle {

class PanelHost;

/// Main thread. It stays up until it is destroyed, unless its screen goes away or the page crashes:
/// then it is hidden.
class WebOverlayWindow final : public QQuickView {
    Q_OBJECT

public:
    WebOverlayWindow(QScreen& screen, PanelHost& host, const QString& page, const QString& script,
                     WebStage::MessageHandler message);

private Q_SLOTS:
    void receive(const QString& body);

private:
    const WebStage::MessageHandler m_message;
};

} // namespace vantle
