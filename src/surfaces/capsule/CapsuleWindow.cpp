#include "surfaces/capsule/CapsuleWindow.h"

#include "base/Words.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantle {

namespace {

constexpr double kShadowRoom = 24;  // px below the panel, for the capsule's shadow
constexpr double kOverlayRoom = 56; // below the menu or the editor, for their shadow

} // namespace

std::unique_ptr<CapsuleWindow> CapsuleWindow::raise(std::unique_ptr<NotchCapsule> capsule,
                                                    const Placement& placement, QQmlEngine& engine,
                                                    PanelHost& host) {
    std::unique_ptr<CapsuleWindow> window(
        new CapsuleWindow(std::move(capsule), placement, engine, host));
    NotchCapsule& shown = window->capsule();
    if (!window->panel().load(
            QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Capsule/NotchCapsuleView.qml")),
            {{QStringLiteral("capsule"), QVariant::fromValue(&shown)}}))
        return nullptr;
    window->follow();
    return window;
}

CapsuleWindow::CapsuleWindow(std::unique_ptr<NotchCapsule> capsule, const Placement& placement,
                             QQmlEngine& engine, PanelHost& host)
    : m_host(host)
    , m_placement(placement)
    , m_capsule(capsule.release())
    , m_panel(new FloatingPanel(engine, host)) {
    m_panel->setTitle(Words::tr("Vantle Capsule"));
    m_capsule->setStage(this);
    QObject::connect(m_panel.get(), &FloatingPanel::keyboardLost, m_capsule.get(),
                     &NotchCapsule::dismissOverlay);
    QObject::connect(m_panel.get(), &FloatingPanel::compositedChanged, m_capsule.get(),
                     [this] { follow(); });
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
    if (m_panel->rootObject() == nullptr) return; // the view is still loading
    sensePointer();
    if (mustHide())
        m_panel->hide();
    else
        m_panel->showAt(placement());
}

/// Without a compositor the window exists only while the capsule is open; without input regions it
/// does not stay for the fade.
bool CapsuleWindow::mustHide() const {
    if (m_capsule->isLeaving() && !m_host.hasInputRegions()) return true;
    return !m_panel->isComposited() && !m_capsule->isExpanded();
}

void CapsuleWindow::sensePointer() {
    const QRect strip = m_capsule->freeStrip();
    if (strip.isEmpty())
        m_sensor.reset();
    else if (!m_sensor)
        m_sensor = m_host.senseAt(m_placement, strip, [this] { m_capsule->pointerRested(); });
}

/// The window covers the strip only without a pointer sensor: it takes the presses there.
QRegion CapsuleWindow::inputRegion() const {
    const QRegion shown = m_capsule->inputRegion();
    return m_sensor ? shown : shown + m_capsule->freeStrip();
}

Placement CapsuleWindow::placement() const {
    const QRectF overlay = m_capsule->overlayRect();
    const double below =
        overlay.isEmpty() ? 0 : overlay.bottom() + kOverlayRoom - m_placement.size.height();
    Placement placement = m_placement;
    placement.room.setBottom(static_cast<int>(std::ceil(std::max(kShadowRoom, below))));
    placement.felt = inputRegion();
    placement.opaque = m_capsule->opaqueRegion();
    return placement;
}

} // namespace vantle
