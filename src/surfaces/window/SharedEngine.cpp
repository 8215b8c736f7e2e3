#include "surfaces/window/SharedEngine.h"

#include <QQmlEngine>

namespace vantle {

SharedEngine::SharedEngine(std::function<void(QQmlEngine&)> prepare)
    : m_prepare(std::move(prepare)) {}

std::shared_ptr<QQmlEngine> SharedEngine::acquire() {
    if (auto engine = m_engine.lock()) return engine;
    auto engine = std::make_shared<QQmlEngine>();
    engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    if (m_prepare) m_prepare(*engine);
    m_engine = engine;
    return engine;
}

} // namespace vantle
