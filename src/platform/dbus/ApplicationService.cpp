#include "platform/dbus/ApplicationService.h"

#include "platform/dbus/AnswerLimit.h"
#include "platform/dbus/ApplicationAdaptor.h"

#include <QDBusMessage>

namespace vantle {

namespace {

const QString kName = QStringLiteral("local.vantle.Vantle");
const QString kObjectPath = QStringLiteral("/local/vantle/Vantle");

const QString kBus = QStringLiteral("org.freedesktop.DBus");
const QString kBusPath = QStringLiteral("/org/freedesktop/DBus");

constexpr uint kDoNotQueue = 4;   // RequestName: a name that is taken is not waited for
constexpr uint kPrimaryOwner = 1; // its answer: the name is ours now
constexpr uint kAlreadyOwner = 4; // or has been

} // namespace

ApplicationService::ApplicationService(const QDBusConnection& session) : m_session(session) {
    new ApplicationAdaptor(*this);
}

ApplicationService::~ApplicationService() {
    if (!m_serving) return;
    m_session.unregisterObject(kObjectPath);
    auto release =
        QDBusMessage::createMethodCall(kBus, kBusPath, kBus, QStringLiteral("ReleaseName"));
    release << kName;
    m_session.send(release);
}

ApplicationService::Outcome ApplicationService::start() {
    if (m_serving) return Outcome::Serving;
    // The object first: who finds the name may call at once.
    if (!m_session.isConnected() ||
        !m_session.registerObject(kObjectPath, this, QDBusConnection::ExportAdaptors))
        return Outcome::NoBus;
    auto request =
        QDBusMessage::createMethodCall(kBus, kBusPath, kBus, QStringLiteral("RequestName"));
    request << kName << kDoNotQueue;
    const auto reply = m_session.call(request, QDBus::Block, kAnswerLimitMs);
    const bool answered =
        reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty();
    const uint answer = answered ? reply.arguments().constFirst().toUInt() : 0;
    m_serving = answer == kPrimaryOwner || answer == kAlreadyOwner;
    if (m_serving) return Outcome::Serving;
    m_session.unregisterObject(kObjectPath);
    return answered ? Outcome::NameTaken : Outcome::NoBus;
}

// Emitted after the answer has gone out, since what follows may take long or ask the person.

void ApplicationAdaptor::Activate(const QVariantMap&) {
    QMetaObject::invokeMethod(&m_service, &ApplicationService::activated, Qt::QueuedConnection);
}

void ApplicationAdaptor::Open(const QStringList&, const QVariantMap& platformData) {
    Activate(platformData);
}

void ApplicationAdaptor::ActivateAction(const QString& name, const QVariantList&,
                                        const QVariantMap&) {
    QMetaObject::invokeMethod(
        &m_service, [this, name] { Q_EMIT m_service.actionActivated(name); }, Qt::QueuedConnection);
}

} // namespace vantle
