#include "ceremony/web/WebCeremonyPlugin.h"

#include "ceremony/web/WebOverlayWindow.h"

#include <QPointer>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(Vantle_CeremonyWebPlugin)

namespace vantle {

namespace {

/// Ends the page, also from inside one of its messages.
class Place final : public OverlayWindow {
public:
    explicit Place(WebOverlayWindow* window) : m_window(window) {}
    ~Place() override {
        if (!m_window) return;
        m_window->hide();
        m_window->deleteLater();
    }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

private:
    const QPointer<WebOverlayWindow> m_window;
};

} // namespace

// Before the engine starts. These features reach the network without asking an interceptor.
WebCeremonyPlugin::WebCeremonyPlugin() {
    constexpr const char* variable = "QTWEBENGINE_CHROMIUM_FLAGS";
    qputenv(variable, qgetenv(variable) +
                          " --disable-blink-features=WebTransport --disable-quic"
                          " --force-webrtc-ip-handling-policy=disable_non_proxied_udp"
                          " --disable-logging");
}

std::unique_ptr<OverlayWindow> WebCeremonyPlugin::putUp(const QRect& frame, const Screens& screens,
                                                        PanelHost& host, const QString& page,
                                                        const QString& script,
                                                        WebStage::MessageHandler message) {
    return std::make_unique<Place>(
        new WebOverlayWindow(frame, screens, host, page, script, std::move(message)));
}

} // namespace vantle
