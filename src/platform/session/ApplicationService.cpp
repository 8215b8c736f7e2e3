#include "platform/session/ApplicationService.h"

#include "base/Scheduler.h"
#include "platform/bus/BusValue.h"
#include "platform/session/ApplicationAdaptor.h"

#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QEventLoop>

namespace vantle {

namespace {

const QString kName = QStringLiteral("local.vantle.Vantle");
const QString kObjectPath = QStringLiteral("/local/vantle/Vantle");

const QString kBus = QStringLiteral("org.freedesktop.DBus");
const QString kBusPath = QStringLiteral("/org/freedesktop/DBus");

constexpr int kAnswerLimitMs = 2000; // for a running copy

constexpr uint kDoNotQueue = 4;   // RequestName flag: do not wait for a taken name
constexpr uint kPrimaryOwner = 1; // reply: the name is now owned
constexpr uint kAlreadyOwner = 4; // reply: it was owned before

} // namespace

ApplicationService::ApplicationService(const QDBusConnection& session) : m_session(session) {
    new ApplicationAdaptor(*this);
}

ApplicationService::~ApplicationService() {
    if (m_state != State::Serving && m_state != State::Asking) return;
    m_session.unregisterObject(kObjectPath);
    auto release =
        QDBusMessage::createMethodCall(kBus, kBusPath, kBus, QStringLiteral("ReleaseName"));
    release << kName;
    m_session.send(release);
}

void ApplicationService::start() {
    if (m_state == State::Serving || m_state == State::Asking) return;
    // The object before the name: clients may call as soon as the name exists.
    if (!m_session.isConnected() ||
        !m_session.registerObject(kObjectPath, this, QDBusConnection::ExportAdaptors)) {
        m_state = State::NoBus;
        return;
    }
    m_state = State::Asking;
    auto request =
        QDBusMessage::createMethodCall(kBus, kBusPath, kBus, QStringLiteral("RequestName"));
    request << kName << kDoNotQueue;
    auto* const answer = new QDBusPendingCallWatcher(m_session.asyncCall(request), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        take(answer->reply());
    });
}

void ApplicationService::take(const QDBusMessage& answer) {
    const auto result = busValue<uint>(answer.arguments().value(0)); // an error has a text
    if (result == kPrimaryOwner || result == kAlreadyOwner) {
        m_state = State::Serving;
        return;
    }
    m_state = result ? State::NameTaken : State::NoBus;
    m_session.unregisterObject(kObjectPath);
}

bool ApplicationService::showRunningCopy(const QDBusConnection& session, Scheduler& scheduler) {
    if (!session.isConnected()) return false;
    auto activate = QDBusMessage::createMethodCall(kName, kObjectPath,
                                                   QStringLiteral("org.freedesktop.Application"),
                                                   QStringLiteral("Activate"));
    activate << QVariantMap();
    activate.setAutoStartService(false);
    QEventLoop loop;
    bool answered = false;
    const auto ask = [&] {
        auto* const answer =
            new QDBusPendingCallWatcher(session.asyncCall(activate, kAnswerLimitMs), &loop);
        connect(answer, &QDBusPendingCallWatcher::finished, &loop, [&, answer] {
            if (answer->isError()) return; // or the name has no owner yet
            answered = true;
            loop.quit();
        });
    };
    const QDBusServiceWatcher coming(kName, session, QDBusServiceWatcher::WatchForRegistration);
    connect(&coming, &QDBusServiceWatcher::serviceRegistered, &loop, ask);
    const TimerHandle limit =
        scheduler.scheduleOnce(Seconds(kAnswerLimitMs / 1000.0), [&loop] { loop.quit(); });
    ask();
    loop.exec();
    return answered;
}

// Deferred until the reply has been sent, since the listener may take long or ask the user.

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
