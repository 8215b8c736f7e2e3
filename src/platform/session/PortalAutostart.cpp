#include "platform/session/PortalAutostart.h"

#include "base/Words.h"
#include "platform/bus/BusValue.h"

#include <QStringList>
#include <QVariantMap>

#include <cerrno>

namespace vantle {

PortalAutostart::PortalAutostart(const QDBusConnection& session, Preferences& preferences,
                                 const Preference<bool>& kept)
    : m_session(session)
    , m_preferences(preferences)
    , m_kept(kept) {}

Result<> PortalAutostart::ask(bool autostart) {
    if (!m_session.isConnected())
        return Error::fromErrno(ENOTCONN, QStringLiteral("ask"), QStringLiteral("portal"));
    const bool before = isRegistered();
    m_kept.write(m_preferences, autostart);
    m_request = std::make_unique<PortalRequest>(
        m_session,
        PortalRequest::Call{
            QStringLiteral("org.freedesktop.portal.Background"),
            QStringLiteral("RequestBackground"),
            {QString()},
            {{QStringLiteral("reason"), Words::tr("Vantle counts from the moment you log in.")},
             {QStringLiteral("autostart"), autostart},
             // Without a window: the user has not asked for one then.
             {QStringLiteral("commandline"),
              QStringList{QStringLiteral("env"), QStringLiteral("VANTLE_AUTOSTART=1"),
                          QStringLiteral("vantle")}}}});
    QObject::connect(m_request.get(), &PortalRequest::answered, m_request.get(),
                     [this](uint response, const QVariantMap& results) {
                         m_kept.write(m_preferences, response == portal::kGranted &&
                                                         busValue<bool>(results.value(
                                                             QStringLiteral("autostart"))) == true);
                     });
    QObject::connect(m_request.get(), &PortalRequest::refused, m_request.get(),
                     [this, before] { m_kept.write(m_preferences, before); });
    return {};
}

} // namespace vantle
