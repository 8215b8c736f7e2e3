#include "platform/session/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QUuid>

namespace vantle {

namespace {

// Until the portal has taken the request, for which it and its backend may have to be started.
constexpr int kLimitMs = 5000;

} // namespace

QString portal::newToken() {
    return QStringLiteral("vantle_") + QUuid::createUuid().toString(QUuid::Id128);
}

QString portal::requestPath(const QString& connection, const QString& token) {
    QString sender = connection.mid(1); // without the colon
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    return QStringLiteral("%1/request/%2/%3").arg(kPath, sender, token);
}

PortalRequest::PortalRequest(const QDBusConnection& bus, const Call& call, QObject* parent)
    : QObject(parent)
    , m_bus(bus) {
    const QString token = portal::newToken();
    listenAt(portal::requestPath(m_bus.baseService(), token));
    QVariantMap options = call.options;
    options.insert(QStringLiteral("handle_token"), token);
    auto message = QDBusMessage::createMethodCall(portal::kService, portal::kPath, call.interface,
                                                  call.method);
    message.setArguments(call.arguments + QVariantList{options});
    auto* const taken = new QDBusPendingCallWatcher(m_bus.asyncCall(message, kLimitMs), this);
    connect(taken, &QDBusPendingCallWatcher::finished, this, [this, taken] {
        taken->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *taken;
        if (reply.isError())
            Q_EMIT refused();
        else if (reply.value().path() != m_path) // very old portals choose their own path
            listenAt(reply.value().path());
    });
}

void PortalRequest::listenAt(const QString& path) {
    m_path = path;
    m_bus.connect(portal::kService, m_path, portal::kRequest, QStringLiteral("Response"), this,
                  SIGNAL(answered(uint, QVariantMap)));
}

void PortalRequest::close() {
    m_bus.asyncCall(QDBusMessage::createMethodCall(portal::kService, m_path, portal::kRequest,
                                                   QStringLiteral("Close")));
}

} // namespace vantle
