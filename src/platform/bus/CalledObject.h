// An object of this program on a message bus.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QString>

#include <functional>

namespace vantle {

/// Receives each call of any method, from any sender: `take` must check the sender. Leaves the bus
/// with this object. Main thread.
class CalledObject final : public QDBusVirtualObject {
public:
    CalledObject(const QDBusConnection& bus, const QString& path,
                 std::function<void(const QDBusMessage& call)> take);
    ~CalledObject() override;

    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override;

private:
    QDBusConnection m_bus;
    const QString m_path;
    const std::function<void(const QDBusMessage& call)> m_take;
};

} // namespace vantle
