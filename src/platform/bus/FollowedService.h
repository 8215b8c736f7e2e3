// A service on a message bus that may come and go.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <type_traits>
#include <utility>

namespace vantle {

/// Follows the owner of a bus name, calls it and receives its signals. Drops signals of others and
/// replies of former owners. Does not block or start the service. Without a connection nothing is
/// ever reported. Main thread.
class FollowedService final : public QObject {
    Q_OBJECT

public:
    /// Reports the initial state by `came` or `gone`, from the event loop.
    FollowedService(const QDBusConnection& bus, QString name, QObject* parent = nullptr);

    [[nodiscard]] bool isThere() const { return !m_owner.isEmpty(); }
    /// Whether the connection with that unique name owns the service now.
    [[nodiscard]] bool isOwnedBy(const QString& connection) const {
        return isThere() && connection == m_owner;
    }

    /// Asks the bus to activate the service.
    void start();

    /// Calls `take` for each such signal. An empty path matches all; `firstArgument` is compared
    /// unless empty.
    void hear(const QString& path, const QString& interface, const QString& member,
              std::function<void(const QDBusMessage& signal)> take,
              const QString& firstArgument = {});

    /// Make a method call, and one that reads a property.
    [[nodiscard]] QDBusMessage call(const QString& path, const QString& interface,
                                    const QString& method) const;
    [[nodiscard]] QDBusMessage get(const QString& path, const QString& interface,
                                   const QString& property) const;

    /// Sends the call. Calls `take` with a reply of that type (`void` for none), `fail` on an error
    /// or another reply, and neither when the service goes away first.
    template <typename Answer, typename Take>
    void ask(
        const QDBusMessage& call, Take take, std::function<void()> fail = [] {}) {
        send(call, [take = std::move(take), fail = std::move(fail)](const QDBusPendingCall& ended) {
            using Reply = std::conditional_t<std::is_void_v<Answer>, QDBusPendingReply<>,
                                             QDBusPendingReply<Answer>>;
            const Reply reply = ended;
            if (!reply.isValid()) return fail();
            if constexpr (std::is_void_v<Answer>)
                take();
            else
                take(reply.value());
        });
    }

Q_SIGNALS:
    /// The service has a new owner, which knows of no earlier calls.
    void came();
    /// The service has no owner. Its earlier reports are void.
    void gone();

private:
    void setOwner(const QString& owner);
    void askForOwner();
    void send(const QDBusMessage& call, std::function<void(const QDBusPendingCall& ended)> take);

    QDBusConnection m_bus;
    const QString m_name;
    QString m_owner;       ///< unique name; empty while there is none or it is unknown
    int m_ownersSoFar = 0; ///< counts the absence of an owner too
};

/// Forwards one signal, for FollowedService.
class HeardSignal final : public QObject {
    Q_OBJECT

public:
    HeardSignal(std::function<void(const QDBusMessage& signal)> take, QObject* parent)
        : QObject(parent)
        , m_take(std::move(take)) {}

public Q_SLOTS:
    void pass(const QDBusMessage& signal) { m_take(signal); }

private:
    const std::function<void(const QDBusMessage& signal)> m_take;
};

} // namespace vantle
