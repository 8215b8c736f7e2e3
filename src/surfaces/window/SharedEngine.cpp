#include "surfaces/window/SharedEngine.h"

#include <QQmlEngine>

namespace vantle {

SharedEngine::SharedEngine(std::function<void(QQmlEngine&)> prepare)
    : m_prepare(std::move(prepare)) {}

std::shared_ptr<QQmlEngine> SharedEngine::acquire() {
    auto engine = m_engine.lock();
    if (!engine) {
        engine = std::make_shared<QQmlEngine>();
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
        m_engine = engine;
    }
    if (m_prepare) m_prepare(*engine);
    return engine;
}

void SharedEngine::refresh() {
    if (const auto engine = m_engine.lock(); engine && m_prepare) m_prepare(*engine);
}

} // namespace vantle
