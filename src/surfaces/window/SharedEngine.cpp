#include "surfaces/window/SharedEngine.h"

#include "base/Heap.h"

#include <QQmlEngine>

#include <utility>

namespace vantle {

struct SharedEngine::Rest {
    explicit Rest(Scheduler& owner) : scheduler(owner) {}

    void begin(std::shared_ptr<QQmlEngine> unused) {
        engine = std::move(unused);
        end = scheduler.scheduleOnce(kept, [this] {
            const TimerHandle spent = std::move(end);
            engine.reset();
            trimHeap();
        });
    }

    Scheduler& scheduler;
    std::shared_ptr<QQmlEngine> engine;
    TimerHandle end;
};

SharedEngine::SharedEngine(Scheduler& scheduler, std::function<void(QQmlEngine&)> prepare)
    : m_prepare(std::move(prepare))
    , m_rest(std::make_shared<Rest>(scheduler)) {}

SharedEngine::~SharedEngine() = default;

std::shared_ptr<QQmlEngine> SharedEngine::acquire() {
    auto inUse = m_inUse.lock();
    if (!inUse) {
        auto engine = m_engine.lock();
        if (!engine) {
            engine = std::make_shared<QQmlEngine>();
            engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
            m_engine = engine;
        }
        m_rest->end.reset();
        m_rest->engine.reset();
        // A view may outlive this object; then the engine goes with it.
        inUse = {engine.get(), [engine, rest = std::weak_ptr(m_rest)](QQmlEngine*) mutable {
                     if (const auto owner = rest.lock()) owner->begin(std::move(engine));
                 }};
        m_inUse = inUse;
    }
    if (m_prepare) m_prepare(*inUse);
    return inUse;
}

void SharedEngine::refresh() {
    if (const auto engine = m_engine.lock(); engine && m_prepare) m_prepare(*engine);
}

} // namespace vantle
