#include "platform/session/PortalAutostart.h"

#include "base/Words.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>
#include <QUuid>

#include <cerrno>
#include <utility>

namespace vantle {

namespace {

const QString kStarter = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kStarterPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kBackground = QStringLiteral("org.freedesktop.portal.Background");
const QString kStarterRequest = QStringLiteral("org.freedesktop.portal.Request");

constexpr uint kStartGranted = 0; // response code; all others mean that nothing changed

} // namespace

PortalAutostart::PortalAutostart(const QDBusConnection& session, Preferences& preferences,
                                 const Preference<bool>& kept)
    : m_session(session)
    , m_preferences(preferences)
    , m_kept(kept) {}

Result<> PortalAutostart::ask(bool autostart) {
    if (!m_session.isConnected())
        return Error::fromErrno(ENOTCONN, QStringLiteral("ask"), QStringLiteral("portal"));
    const QString token = QStringLiteral("vantle_") + QUuid::createUuid().toString(QUuid::Id128);
    QString sender = m_session.baseService().mid(1); // without the colon
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    const QString request = QStringLiteral("%1/request/%2/%3").arg(kStarterPath, sender, token);
    listenAt(request);
    auto call = QDBusMessage::createMethodCall(kStarter, kStarterPath, kBackground,
                                               QStringLiteral("RequestBackground"));
    call << QString()
         << QVariantMap{
                {QStringLiteral("handle_token"), token},
                {QStringLiteral("reason"), Words::tr("Vantle counts from the moment you log in.")},
                {QStringLiteral("autostart"), autostart},
                // Without a window: the user has not asked for one then.
                {QStringLiteral("commandline"),
                 QStringList{QStringLiteral("env"), QStringLiteral("VANTLE_AUTOSTART=1"),
                             QStringLiteral("vantle")}}};
    const bool before = isRegistered();
    m_kept.write(m_preferences, autostart);
    auto* const answer = new QDBusPendingCallWatcher(m_session.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, before, request] {
        answer->deleteLater();
        if (m_request != request) return; // asked again since
        const QDBusPendingReply<QDBusObjectPath> reply = *answer;
        if (reply.isError())
            m_kept.write(m_preferences, before);
        else if (reply.value().path() != request) // very old portals choose their own path
            listenAt(reply.value().path());
    });
    return {};
}

void PortalAutostart::listenAt(const QString& path) {
    const auto slot = SLOT(takeResponse(uint, QVariantMap));
    const QString signal = QStringLiteral("Response");
    if (!m_request.isEmpty())
        m_session.disconnect(kStarter, m_request, kStarterRequest, signal, this, slot);
    m_request = path;
    m_session.connect(kStarter, m_request, kStarterRequest, signal, this, slot);
}

void PortalAutostart::takeResponse(uint response, const QVariantMap& results) {
    const bool granted =
        response == kStartGranted && results.value(QStringLiteral("autostart")).toBool();
    m_kept.write(m_preferences, granted);
}

} // namespace vantle
