#include "ceremony/ModuleWebStage.h"

#include "ceremony/WebCeremonyModule.h"
#include "platform/WholeScreen.h"

#include <QCoreApplication>
#include <QPluginLoader>

namespace vantle {

ModuleWebStage::ModuleWebStage(QString modulePath, std::function<QString()> findPage,
                               PanelHost& host)
    : m_modulePath(std::move(modulePath))
    , m_findPage(std::move(findPage))
    , m_host(host) {}

bool ModuleWebStage::hasPage() {
    if (!QCoreApplication::testAttribute(Qt::AA_ShareOpenGLContexts)) return false;
    if (m_findPage().isEmpty()) return false;
    if (!std::exchange(m_wasTried, true))
        m_module = qobject_cast<WebCeremonyModule*>(QPluginLoader(m_modulePath).instance());
    return m_module != nullptr;
}

std::unique_ptr<OverlayWindow> ModuleWebStage::putUp(const QRect& frame, const QString& script,
                                                     MessageHandler message) {
    QScreen* const screen = wholescreen::withFrame(frame);
    std::unique_ptr<OverlayWindow> window;
    if (m_module && screen)
        window = m_module->putUp(*screen, m_host, m_findPage(), script, std::move(message));
    return window ? std::move(window) : std::make_unique<OverlayWindow>();
}

} // namespace vantle
