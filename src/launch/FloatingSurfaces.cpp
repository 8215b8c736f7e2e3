#include "launch/FloatingSurfaces.h"

#include "surfaces/capsule/CapsuleWindow.h"
#include "surfaces/window/SharedEngine.h"

#include <QCoreApplication>

namespace vantle {

FloatingSurfaces::FloatingSurfaces(const Environment& environment)
    : m_env(environment)
    , m_engine(m_env.engine.acquire())
    , m_cardStage({[this]() -> QQmlEngine& { return *m_env.engine.acquire(); }, m_env.panelHost,
                   m_env.screens}) {}

FloatingSurfaces::~FloatingSurfaces() {
    // Windows go in the next turn of the event loop, of which there is none any more.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::unique_ptr<collaborators::Notch> FloatingSurfaces::makeNotch() {
    return std::make_unique<NotchStatusController>(NotchStatusController::Environment{
        .scheduler = m_env.scheduler,
        .preferences = m_env.preferences,
        .reducedMotion = m_env.reducedMotion,
        .screens = m_env.screens,
        .raise = [this](std::unique_ptr<NotchCapsule> capsule, const QRectF& panelFrame) {
            return CapsuleWindow::raise(std::move(capsule), panelFrame, *m_env.engine.acquire(),
                                        m_env.panelHost);
        }});
}

} // namespace vantle
