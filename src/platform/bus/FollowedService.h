// A service of a message bus that may come, go and come back.
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

/// Follows who owns a name on the bus, asks the owner and hears its signals. Signals of others and
/// answers of an owner that has gone since are dropped. Main thread; nothing blocks, and no call
/// starts the service. Without a connection nothing is ever told or answered.
class FollowedService final : public QObject {
    Q_OBJECT

public:
    /// Tells by `came` or `gone`, from the event loop, how it finds the service.
    FollowedService(const QDBusConnection& bus, QString name, QObject* parent = nullptr);

    [[nodiscard]] bool isThere() const { return !m_owner.isEmpty(); }
    /// Whether the connection of that unique name has the service now.
    [[nodiscard]] bool isOwnedBy(const QString& connection) const {
        return isThere() && connection == m_owner;
    }

    /// Asks the bus to start the service, where it knows how to.
    void start();

    /// Calls `take` with each signal of that member. An empty path stands for all; `firstArgument`
    /// is compared only if it is not empty.
    void hear(const QString& path, const QString& interface, const QString& member,
              std::function<void(const QDBusMessage& signal)> take,
              const QString& firstArgument = {});

    /// A call of the service, and one that gets a property.
    [[nodiscard]] QDBusMessage call(const QString& path, const QString& interface,
                                    const QString& method) const;
    [[nodiscard]] QDBusMessage get(const QString& path, const QString& interface,
                                   const QString& property) const;

    /// Sends the call. Calls `take` with an answer of that type, or `void` for none; `fail` after
    /// an error or any other answer; neither when the service goes first.
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
    /// The service is there, under a new owner of its name: it knows nothing of former questions.
    void came();
    /// The service is not there. What it said has ended with it.
    void gone();

private:
    void setOwner(const QString& owner);
    void askForOwner();
    void send(const QDBusMessage& call, std::function<void(const QDBusPendingCall& ended)> take);

    QDBusConnection m_bus;
    const QString m_name;
    QString m_owner;       ///< unique name; empty while there is none or it is not known yet
    int m_ownersSoFar = 0; ///< counts the absence of one, too
};

/// Passes one signal on. For FollowedService.
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
