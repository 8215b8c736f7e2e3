#include "surfaces/capsule/CapsuleWindow.h"

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

constexpr double kShadowRoom = 24;  // px below the panel, for the capsule's shadow
constexpr double kOverlayRoom = 56; // below the menu or the editor, for theirs

} // namespace

std::unique_ptr<CapsuleWindow> CapsuleWindow::raise(std::unique_ptr<NotchCapsule> capsule,
                                                    const QRectF& panelFrame, QQmlEngine& engine,
                                                    PanelHost& host) {
    std::unique_ptr<CapsuleWindow> window(
        new CapsuleWindow(std::move(capsule), panelFrame, engine, host));
    NotchCapsule& shown = window->capsule();
    if (!window->panel().load(
            QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Capsule/NotchCapsuleView.qml")),
            {{QStringLiteral("capsule"), QVariant::fromValue(&shown)},
             {QStringLiteral("composited"), host.isComposited()}}))
        return nullptr;
    window->follow();
    window->panel().showAt(window->windowFrame());
    return window;
}

CapsuleWindow::CapsuleWindow(std::unique_ptr<NotchCapsule> capsule, const QRectF& panelFrame,
                             QQmlEngine& engine, PanelHost& host)
    : m_panelFrame(panelFrame)
    , m_capsule(capsule.release())
    , m_panel(new FloatingPanel(engine, host)) {
    m_capsule->setStage(this);
    QObject::connect(m_panel.get(), &FloatingPanel::keyboardLost, m_capsule.get(),
                     &NotchCapsule::dismissOverlay);
}

CapsuleWindow::~CapsuleWindow() {
    m_panel->disconnect(m_capsule.get());
    m_capsule->retire();
    m_capsule->setStage(nullptr);
    m_panel->hide();
}

bool CapsuleWindow::pointerInside(const QRectF& part) const {
    return m_panel->pointerInside(part.toAlignedRect());
}

void CapsuleWindow::follow() {
    const QRect frame = windowFrame();
    if (m_panel->isVisible() && m_panel->geometry() != frame) m_panel->setGeometry(frame);
    m_panel->setOpaqueRegion(m_capsule->opaqueRegion());
    m_panel->setInputRegion(m_capsule->inputRegion());
}

QRect CapsuleWindow::windowFrame() const {
    const QRectF overlay = m_capsule->overlayRect();
    const double below = overlay.isEmpty() ? 0 : overlay.bottom() + kOverlayRoom;
    QRectF frame = m_panelFrame;
    frame.setHeight(std::max(frame.height() + kShadowRoom, below));
    return frame.toAlignedRect();
}

} // namespace vantle
