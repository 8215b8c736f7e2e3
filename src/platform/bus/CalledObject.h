// An object of this program that others call over a message bus.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QString>

#include <functional>

namespace vantle {

/// Takes each call of any method. It is not told whose calls they are: `take` has to look at the
/// sender. Gone from the bus with this object. Main thread.
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
