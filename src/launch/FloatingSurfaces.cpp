#include "launch/FloatingSurfaces.h"

#include "platform/Platform.h"
#include "surfaces/capsule/CapsuleWindow.h"
#include "surfaces/window/SharedEngine.h"

#include <QCoreApplication>

namespace vantle {

FloatingSurfaces::FloatingSurfaces(const Platform& platform, Scheduler& scheduler,
                                   SharedEngine& engine)
    : m_platform(platform)
    , m_scheduler(scheduler)
    , m_engines(engine)
    , m_cardStage({[this] { return m_engines.acquire(); }, platform.panelHost, platform.screens}) {}

FloatingSurfaces::~FloatingSurfaces() {
    // deleteLater() needs an event loop, and it has ended.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::unique_ptr<collaborators::Notch> FloatingSurfaces::makeNotch() {
    return std::make_unique<NotchStatusController>(NotchStatusController::Environment{
        .scheduler = m_scheduler,
        .preferences = m_platform.preferences,
        .reducedMotion = m_platform.reducedMotion,
        .screens = m_platform.screens,
        .raise = [this](std::unique_ptr<NotchCapsule> capsule, const Placement& placement) {
            return std::make_unique<CapsuleWindow>(
                CapsuleWindow::Environment{m_scheduler, m_platform.panelHost,
                                           [this] { return m_engines.acquire(); }},
                std::move(capsule), placement);
        }});
}

} // namespace vantle
