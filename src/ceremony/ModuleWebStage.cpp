#include "ceremony/ModuleWebStage.h"

#include "ceremony/WebCeremonyModule.h"
#include "platform/PanelHost.h"
#include "platform/WholeScreen.h"

#include <QCoreApplication>
#include <QPluginLoader>

namespace vantle {

ModuleWebStage::ModuleWebStage(QString modulePath, std::function<QString()> findPage,
                               const Screens& screens, PanelHost& host)
    : m_modulePath(std::move(modulePath))
    , m_findPage(std::move(findPage))
    , m_screens(screens)
    , m_host(host) {}

bool ModuleWebStage::hasPage() {
    if (!m_host.hasInputRegions()) return false;
    if (!QCoreApplication::testAttribute(Qt::AA_ShareOpenGLContexts)) return false;
    if (m_findPage().isEmpty()) return false;
    if (!std::exchange(m_wasTried, true))
        m_module = qobject_cast<WebCeremonyModule*>(QPluginLoader(m_modulePath).instance());
    return m_module != nullptr;
}

std::vector<QRect> ModuleWebStage::frames() const { return wholescreen::frames(m_screens); }

std::unique_ptr<OverlayWindow> ModuleWebStage::putUp(const QRect& frame, const QString& script,
                                                     MessageHandler message) {
    std::unique_ptr<OverlayWindow> window;
    if (m_module && wholescreen::exists(m_screens, frame))
        window =
            m_module->putUp(frame, m_screens, m_host, m_findPage(), script, std::move(message));
    return window ? std::move(window) : std::make_unique<OverlayWindow>();
}

} // namespace vantle
