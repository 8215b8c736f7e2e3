#include "platform/session/SessionScreenPower.h"

#include "platform/bus/BusValue.h"
#include "platform/bus/FollowedService.h"

#include <QDBusMessage>
#include <QStringList>

namespace vantle {

namespace {

/// Service and interface names; the index is the cause.
const QStringList kScreenSavers{
    QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("org.gnome.ScreenSaver"),
    QStringLiteral("org.mate.ScreenSaver"), QStringLiteral("org.cinnamon.ScreenSaver"),
    QStringLiteral("org.xfce.ScreenSaver")};

/// The object to call; signals may come from others.
QString pathOf(const QString& name) { return u'/' + QString(name).replace(u'.', u'/'); }

} // namespace

SessionScreenPower::SessionScreenPower(const QDBusConnection& session) {
    for (int i = 0; i < kScreenSavers.size(); ++i)
        follow(session, static_cast<unsigned>(i), kScreenSavers[i]);
}

void SessionScreenPower::follow(const QDBusConnection& session, unsigned cause,
                                const QString& name) {
    auto* saver = new FollowedService(session, name, this);
    connect(saver, &FollowedService::gone, this, [this, cause] { setCause(cause, false); });
    connect(saver, &FollowedService::came, this, [this, saver, cause, name] {
        saver->ask<bool>(saver->call(pathOf(name), name, QStringLiteral("GetActive")),
                         [this, cause](bool active) { setCause(cause, active); });
    });
    // Any path: some services signal from an older one.
    saver->hear(QString(), name, QStringLiteral("ActiveChanged"),
                [this, cause](const QDBusMessage& signal) {
                    const auto active = busValue<bool>(signal.arguments().value(0));
                    if (active) setCause(cause, *active);
                });
}

} // namespace vantle
