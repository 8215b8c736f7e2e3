// An object on a message bus that answers as a test says.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QString>

#include <functional>
#include <utility>

namespace vantle::tests {

/// `answer` gets each call and sends the reply. Leaves the bus with this object.
class AnsweringObject final : public QDBusVirtualObject {
public:
    AnsweringObject(QDBusConnection bus, QString path,
                    std::function<void(const QDBusMessage& call)> answer)
        : m_bus(std::move(bus))
        , m_path(std::move(path))
        , m_answer(std::move(answer)) {
        m_bus.registerVirtualObject(m_path, this);
    }
    ~AnsweringObject() override { m_bus.unregisterObject(m_path); }

    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection&) override {
        m_answer(call);
        return true;
    }

private:
    QDBusConnection m_bus;
    const QString m_path;
    const std::function<void(const QDBusMessage& call)> m_answer;
};

} // namespace vantle::tests
