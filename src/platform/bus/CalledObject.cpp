#include "platform/bus/CalledObject.h"

#include <utility>

namespace vantle {

CalledObject::CalledObject(const QDBusConnection& bus, const QString& path,
                           std::function<void(const QDBusMessage& call)> take)
    : m_bus(bus)
    , m_path(path)
    , m_take(std::move(take)) {
    m_bus.registerVirtualObject(m_path, this);
}

CalledObject::~CalledObject() { m_bus.unregisterObject(m_path); }

bool CalledObject::handleMessage(const QDBusMessage& call, const QDBusConnection& bus) {
    if (call.type() != QDBusMessage::MethodCallMessage) return false;
    if (call.isReplyRequired()) bus.send(call.createReply());
    m_take(call);
    return true;
}

} // namespace vantle
