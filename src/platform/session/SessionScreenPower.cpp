#include "platform/session/SessionScreenPower.h"

#include "platform/session/AnswerLimit.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QStringList>

namespace vantle {

namespace {

/// Names of service and interface alike; the index of each is its cause.
const QStringList kScreenSavers{
    QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("org.gnome.ScreenSaver"),
    QStringLiteral("org.mate.ScreenSaver"), QStringLiteral("org.cinnamon.ScreenSaver"),
    QStringLiteral("org.xfce.ScreenSaver")};

/// The object that answers; signals may come from others.
QString pathOf(const QString& name) { return u'/' + QString(name).replace(u'.', u'/'); }

} // namespace

SessionScreenPower::SessionScreenPower(const QDBusConnection& session) : m_session(session) {
    if (!m_session.isConnected()) return;
    for (int i = 0; i < kScreenSavers.size(); ++i)
        follow(static_cast<unsigned>(i), kScreenSavers[i]);
}

void SessionScreenPower::follow(unsigned cause, const QString& name) {
    // From any path: some services signal on an older one.
    m_session.connect(name, QString(), name, QStringLiteral("ActiveChanged"), this,
                      SLOT(takeActive(QDBusMessage)));
    auto* watcher =
        new QDBusServiceWatcher(name, m_session, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this, cause, name](const QString&, const QString&, const QString& newOwner) {
                setCause(cause, false); // what the old one said died with it
                if (!newOwner.isEmpty()) askWhetherActive(cause, name);
            });
    askWhetherActive(cause, name);
}

void SessionScreenPower::askWhetherActive(unsigned cause, const QString& name) {
    auto call =
        QDBusMessage::createMethodCall(name, pathOf(name), name, QStringLiteral("GetActive"));
    call.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(m_session.asyncCall(call, kAnswerLimitMs), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, cause] {
        answer->deleteLater();
        const QDBusPendingReply<bool> reply = *answer;
        if (reply.isValid()) setCause(cause, reply.value());
    });
}

void SessionScreenPower::takeActive(const QDBusMessage& signal) {
    const auto cause = kScreenSavers.indexOf(signal.interface());
    if (cause < 0 || signal.arguments().isEmpty()) return;
    setCause(static_cast<unsigned>(cause), signal.arguments().constFirst().toBool());
}

} // namespace vantle
