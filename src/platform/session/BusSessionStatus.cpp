#include "platform/session/BusSessionStatus.h"

#include <QDBusMessage>
#include <QMetaObject>
#include <QMetaProperty>
#include <QStringList>
#include <QVariantMap>

#include <utility>

namespace vantle {

void SessionAdaptor::setRead(SessionStatus::Read read) {
    m_read = std::move(read);
    m_kept.reset();
}

const SessionStatus::Values& SessionAdaptor::values() const {
    if (!m_kept) {
        m_kept = m_read ? m_read() : SessionStatus::Values();
        auto* const self = const_cast<SessionAdaptor*>(this);
        QMetaObject::invokeMethod(
            self, [self] { self->m_kept.reset(); }, Qt::QueuedConnection);
    }
    return *m_kept;
}

void SessionAdaptor::noteChange() {
    m_kept.reset();
    if (std::exchange(m_isTelling, true)) return;
    QMetaObject::invokeMethod(
        this, [this] { tell(); }, Qt::QueuedConnection);
}

void SessionAdaptor::tell() {
    m_isTelling = false;
    QStringList names;
    names.reserve(staticMetaObject.propertyCount() - staticMetaObject.propertyOffset());
    for (int i = staticMetaObject.propertyOffset(); i < staticMetaObject.propertyCount(); ++i)
        names << QLatin1String(staticMetaObject.property(i).name());
    auto signal = QDBusMessage::createSignal(QStringLiteral("/local/vantle/Vantle"),
                                             QStringLiteral("org.freedesktop.DBus.Properties"),
                                             QStringLiteral("PropertiesChanged"));
    signal << QStringLiteral("local.vantle.Session1") << QVariantMap() << names;
    m_session.send(signal);
}

BusSessionStatus::BusSessionStatus(const QDBusConnection& session, QObject& object)
    : m_adaptor(*new SessionAdaptor(session, object)) {}

} // namespace vantle
