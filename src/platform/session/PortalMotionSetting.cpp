#include "platform/session/PortalMotionSetting.h"

#include "platform/session/AnswerLimit.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace vantle {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");

const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kReducedMotion = QStringLiteral("reduced-motion"); // 0 no wish, 1 reduce
const QString kGnomeInterface = QStringLiteral("org.gnome.desktop.interface");
const QString kEnableAnimations = QStringLiteral("enable-animations"); // a bool

/// The value inside of however many variants: Read wraps it twice, a signal once.
QVariant unwrapped(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = qvariant_cast<QDBusVariant>(value).variant();
    return value;
}

} // namespace

PortalMotionSetting::PortalMotionSetting(const QDBusConnection& session) : m_session(session) {
    if (!m_session.isConnected()) return;
    m_session.connect(kService, kPortalPath, kInterface, QStringLiteral("SettingChanged"), this,
                      SLOT(takeChange(QString, QString, QDBusVariant)));
    auto* watcher = new QDBusServiceWatcher(kService, m_session,
                                            QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, [this] { ask(); });
    ask();
}

void PortalMotionSetting::ask() {
    ask(kAppearance, kReducedMotion);
    ask(kGnomeInterface, kEnableAnimations);
}

void PortalMotionSetting::ask(const QString& space, const QString& key) {
    auto call =
        QDBusMessage::createMethodCall(kService, kPortalPath, kInterface, QStringLiteral("Read"));
    call << space << key;
    auto* answer = new QDBusPendingCallWatcher(m_session.asyncCall(call, kAnswerLimitMs), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, space, key] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid()) take(space, key, reply.value().variant());
    });
}

void PortalMotionSetting::takeChange(const QString& space, const QString& key,
                                     const QDBusVariant& value) {
    take(space, key, value.variant());
}

void PortalMotionSetting::take(const QString& space, const QString& key, QVariant value) {
    value = unwrapped(std::move(value));
    const std::optional<bool> before = reduced();
    if (space == kAppearance && key == kReducedMotion) {
        m_reducedMotion.reset();
        if (value.toUInt() == 1) m_reducedMotion = true;
    } else if (space == kGnomeInterface && key == kEnableAnimations &&
               value.userType() == QMetaType::Bool) {
        m_animationsOff = !value.toBool();
    }
    if (reduced() != before) Q_EMIT changed();
}

} // namespace vantle
