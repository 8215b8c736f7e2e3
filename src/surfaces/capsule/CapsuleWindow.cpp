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

CapsuleWindow::CapsuleWindow(Environment environment, std::unique_ptr<NotchCapsule> capsule,
                             const Placement& placement)
    : m_env(std::move(environment))
    , m_placement(placement)
    , m_capsule(capsule.release()) {
    m_capsule->setStage(this);
    follow();
}

CapsuleWindow::~CapsuleWindow() {
    if (m_panel) m_panel->disconnect(m_capsule.get());
    m_capsule->retire();
    m_capsule->setStage(nullptr);
    if (m_panel) m_panel->hide();
}

void CapsuleWindow::prepare() {
    if (!m_panel) loadView();
    follow();
}

void CapsuleWindow::loadView() {
    auto engine = m_env.engine();
    m_panel.reset(new FloatingPanel(*engine, m_env.host));
    QObject::connect(m_panel.get(), &QObject::destroyed, [kept = std::move(engine)] {});
    m_panel->setTitle(Words::tr("Vantle Capsule"));
    QObject::connect(m_panel.get(), &FloatingPanel::keyboardLost, m_capsule.get(),
                     &NotchCapsule::dismissOverlay);
    QObject::connect(m_panel.get(), &FloatingPanel::compositedChanged, m_capsule.get(),
                     [this] { follow(); });
    const bool isLoaded =
        m_panel->load(QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Capsule/NotchCapsuleView.qml")),
                      {{QStringLiteral("capsule"), QVariant::fromValue(m_capsule.get())}});
    if (!isLoaded) m_panel.reset();
}

void CapsuleWindow::dropView() {
    m_panel->disconnect(m_capsule.get());
    m_panel->hide();
    m_panel.reset();
}

bool CapsuleWindow::pointerInside(const QRectF& part) const {
    return m_panel && m_panel->pointerInside(part.toAlignedRect());
}

void CapsuleWindow::takeKeyboard() {
    if (m_panel) m_panel->takeKeyboard();
}

void CapsuleWindow::returnKeyboard() {
    if (m_panel) m_panel->returnKeyboard();
}

void CapsuleWindow::follow() {
    if (m_panel && m_panel->rootObject() == nullptr) return; // the view is still loading
    sensePointer();
    if (needsView()) {
        m_drop.reset();
        if (!m_panel) loadView();
    } else if (m_panel && !m_drop) {
        m_drop = m_env.scheduler.scheduleOnce(viewKept, [this] {
            const TimerHandle spent = std::move(m_drop);
            dropView();
        });
    }
    if (!m_panel) return;
    if (mustHide())
        m_panel->hide();
    else
        m_panel->showAt(placement());
}

bool CapsuleWindow::needsView() const {
    return m_capsule->isExpanded() || m_capsule->hasNotch() ||
           (!m_sensor && !m_capsule->freeStrip().isEmpty());
}

/// Without a compositor the window is shown only while the capsule is open; without input regions
/// it does not stay for the fade.
bool CapsuleWindow::mustHide() const {
    if (m_capsule->isLeaving() && !m_env.host.hasInputRegions()) return true;
    return !m_panel->isComposited() && !m_capsule->isExpanded();
}

void CapsuleWindow::sensePointer() {
    const QRect strip = m_capsule->freeStrip();
    if (strip.isEmpty())
        m_sensor.reset();
    else if (!m_sensor)
        m_sensor = m_env.host.senseAt(m_placement, strip, [this] { m_capsule->pointerRested(); });
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
