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
             {QStringLiteral("composited"), window->m_composited}}))
        return nullptr;
    window->follow();
    if (window->m_composited) window->panel().showAt(window->windowFrame());
    return window;
}

CapsuleWindow::CapsuleWindow(std::unique_ptr<NotchCapsule> capsule, const QRectF& panelFrame,
                             QQmlEngine& engine, PanelHost& host)
    : m_host(host)
    , m_composited(host.isComposited())
    , m_panelFrame(panelFrame)
    , m_capsule(capsule.release())
    , m_panel(new FloatingPanel(engine, host)) {
    m_panel->setTitle(QStringLiteral("Vantle Capsule"));
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
    m_panel->setInputRegion(m_capsule->inputRegion());
    if (!m_composited) followUncomposited();
}

void CapsuleWindow::followUncomposited() {
    if (m_capsule->isExpanded()) {
        m_sensor.reset();
        m_panel->setOpaqueRegion(m_capsule->opaqueRegion());
        if (!m_panel->isVisible()) m_panel->showAt(windowFrame());
        return;
    }
    m_panel->hide();
    if (m_sensor || m_capsule->isLeaving()) return;
    const QRectF strip = m_capsule->hoverRect().translated(m_panelFrame.topLeft());
    m_sensor = m_host.senseAt(strip.toAlignedRect(), [this] { m_capsule->setHovered(true); });
}

QRect CapsuleWindow::windowFrame() const {
    const QRectF overlay = m_capsule->overlayRect();
    const double below = overlay.isEmpty() ? 0 : overlay.bottom() + kOverlayRoom;
    QRectF frame = m_panelFrame;
    frame.setHeight(std::max(frame.height() + kShadowRoom, below));
    return frame.toAlignedRect();
}

} // namespace vantle
